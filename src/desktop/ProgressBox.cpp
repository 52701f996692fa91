#include "desktop/ProgressBox.h"

#include <QCoreApplication>
#include <QProgressDialog>

using namespace Qt::StringLiterals;

namespace {

constexpr int Steps = 1000;
/// Between two looks at what the user does, in milliseconds.
constexpr int Pause = 40;

}  // namespace

ProgressBox::ProgressBox(QString text, LongWork patience, Since since)
    : m_text(std::move(text)), m_patience(std::move(patience)) {
  if (since == Since::Now) m_start = m_patience.Now();
}

ProgressBox ProgressBox::OfReport(const LongWork& patience) {
  return {u"Putting the report on its pages ..."_s, patience, Since::FirstStep};
}

ProgressBox::~ProgressBox() = default;

Progress ProgressBox::Teller() {
  return [this](qint64 done, qint64 total) { return Tell(done, total); };
}

bool ProgressBox::Tell(qint64 done, qint64 total) {
  if (!m_start) m_start = m_patience.Now();
  if (!m_dialog) {
    if (m_patience.Now() - *m_start < m_patience.After) return true;
    ComeUp();
    if (m_dialog->wasCanceled()) return false;
  } else if (m_sinceLast.elapsed() < Pause) {
    return !m_dialog->wasCanceled();
  }
  m_sinceLast.start();
  // Lets the user's events through, which the dialog keeps from every other window.
  m_dialog->setValue(total > 0 ? static_cast<int>(done * Steps / total) : 0);
  return !m_dialog->wasCanceled();
}

void ProgressBox::ComeUp() {
  m_owner.emplace();
  m_dialog = std::make_unique<QProgressDialog>(m_text, u"&Stop"_s, 0, Steps, m_owner->Window());
  m_dialog->setWindowTitle(u"Karvex Invoicer"_s);
  m_dialog->setWindowModality(Qt::ApplicationModal);
  m_dialog->setAutoClose(false);
  m_dialog->setAutoReset(false);
  m_dialog->setMinimumDuration(0);
  m_dialog->show();
  // Drawn, and its button live, before the work goes on.
  QCoreApplication::processEvents();
}
