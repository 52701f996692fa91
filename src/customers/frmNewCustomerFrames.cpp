/// The frames beside the customer: they lie over each other, the one shown last on top.
#include <algorithm>

#include "customers/frmNewCustomer.h"
#include "ui_frmNewCustomer.h"

/// `focus` gets the focus once it can; where the frame that goes holds it and nothing is asked for, it goes to where a
/// load sends it.
void frmNewCustomer::ShowFrame(QWidget* frame, bool visible, QWidget* focus) {
  if (focus == nullptr && !visible && frame->isAncestorOf(focusWidget())) {
    focus = m_cmdCustomer[1];
  }
  std::erase(m_frames, frame);
  frame->setEnabled(true);
  if (visible) {
    m_frames.push_back(frame);
    frame->show();
    frame->raise();
  } else if (!m_frames.empty()) {
    m_frames.back()->setEnabled(true);
  }
  const bool any = !m_frames.empty();
  m_ui->frames->setVisible(any);
  m_ui->fraHint->setVisible(!any);
  // A frame needs more room than the hint, which it leaves of the customer's.
  m_ui->bodyLayout->setStretch(0, any ? 4 : 5);
  m_ui->bodyLayout->setStretch(1, any ? 3 : 2);
  if (focus != nullptr) {
    SetFocusTo(focus);
  }
  frame->setVisible(visible);
  // What is covered can't be reached by the keyboard either. Only now: the focus has moved on.
  for (QWidget* shown : m_frames) {
    shown->setEnabled(shown == m_frames.back());
  }
}

void frmNewCustomer::HideTopFrame() {
  QWidget* top = m_frames.back();
  if (top == m_ui->fraBig) {
    HideBig();
  } else if (top == m_ui->fraSearch) {
    m_search.Hide();
  } else {
    ShowFrame(top, false);
  }
}

void frmNewCustomer::HideSearchFrames() {
  ShowFrame(m_ui->fraSearch, false);
  ShowFrame(m_ui->fraCustomersFound, false);
}
