/// Shows how far a long piece of work has come, with a button to stop it. Short work shows nothing.
#pragma once

#include <memory>
#include <optional>
#include <QElapsedTimer>
#include <QString>

#include "desktop/DialogOwner.h"
#include "runtime/Progress.h"

class QProgressDialog;

/// A local variable around the work, which is told `Teller`.
class ProgressBox {
 public:
  static constexpr int Patience = 500;  ///< Milliseconds.

  /// From when the work counts: from here on, or from its first step, where a dialog comes before it.
  enum class Since { Now, FirstStep };

  /// Comes up once the work has taken `patience` milliseconds.
  explicit ProgressBox(QString text, int patience = Patience, Since since = Since::Now);
  ~ProgressBox();
  ProgressBox(const ProgressBox&) = delete;
  ProgressBox& operator=(const ProgressBox&) = delete;

  /// The box must outlive it.
  Progress Teller();

 private:
  bool Tell(qint64 done, qint64 total);
  void ComeUp();

  QString m_text;
  int m_patience;
  QElapsedTimer m_sinceStart;
  QElapsedTimer m_sinceLast;
  std::optional<DialogOwner> m_owner;  ///< Outlives the dialog.
  std::unique_ptr<QProgressDialog> m_dialog;
};
