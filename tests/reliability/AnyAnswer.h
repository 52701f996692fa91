/// A user in front of the real boxes who agrees to everything while this object lives: whatever box comes up, up to
/// thirty, gets its Yes or its OK, any other dialog its way out; the texts are kept. For tests of the whole program;
/// where rules run without a screen, and no box can come up, it is AgreeingDialogs who agrees.
#pragma once

#include <QAbstractButton>
#include <QDialog>
#include <QMessageBox>
#include <QStringList>

#include "support/QueuedAnswers.h"

class AnyAnswer {
 public:
  explicit AnyAnswer(QueuedAnswers& answers) : m_answers(answers) {
    for (int i = 0; i < 30; ++i) {
      m_answers.Dialog([this](QDialog& dialog) {
        const auto* box = qobject_cast<QMessageBox*>(&dialog);
        if (box == nullptr) {
          dialog.reject();
          return;
        }
        Said.append(box->text());
        QAbstractButton* yes = box->button(QMessageBox::Yes);
        (yes != nullptr ? yes : box->buttons().constFirst())->click();
      });
    }
  }
  ~AnyAnswer() { m_answers.Forget(); }
  Q_DISABLE_COPY_MOVE(AnyAnswer)

  QStringList Said;

 private:
  QueuedAnswers& m_answers;
};
