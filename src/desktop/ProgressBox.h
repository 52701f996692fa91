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
  /// From when the work counts: from here on, or from its first step, where a dialog comes before it.
  enum class Since { Now, FirstStep };

  /// Comes up once the work is long.
  ProgressBox(QString text, LongWork patience, Since since = Since::Now);
  /// A report's, which counts from behind its printer dialog.
  static ProgressBox OfReport(const LongWork& patience);
  ~ProgressBox();
  ProgressBox(const ProgressBox&) = delete;
  ProgressBox& operator=(const ProgressBox&) = delete;

  /// The box must outlive it.
  Progress Teller();

 private:
  bool Tell(qint64 done, qint64 total);
  void ComeUp();

  QString m_text;
  LongWork m_patience;
  std::optional<qint64> m_start;
  QElapsedTimer m_sinceLast;
  std::optional<DialogOwner> m_owner;  ///< Outlives the dialog.
  std::unique_ptr<QProgressDialog> m_dialog;
};
