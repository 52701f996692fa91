#include "support/QueuedAnswers.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

void Fail(const QString& message) {
  QTest::qFail(qPrintable(message), __FILE__, __LINE__);
}

QString Plain(QString text) {
  return text.replace("\r\n"_L1, "\n"_L1);
}

/// The dialog as the kind that the answer is for; null, and the test failed, if it is another.
template <typename Kind>
Kind* As(QDialog& dialog, QLatin1StringView kind) {
  auto* wanted = qobject_cast<Kind*>(&dialog);
  if (wanted == nullptr) {
    Fail(u"a %1 dialog was answered, but this came up: %2"_s.arg(kind, dialog.windowTitle()));
    dialog.reject();
  }
  return wanted;
}

void Check(const QueuedAnswers::Wanted& wanted, const QString& actual, QLatin1StringView what) {
  if (wanted && Plain(*wanted) != Plain(actual)) {
    Fail(u"the box's %1 is \"%2\", expected \"%3\""_s.arg(what, actual, *wanted));
  }
}

}  // namespace

QueuedAnswers::QueuedAnswers() {
  qApp->installEventFilter(this);
}

QueuedAnswers::~QueuedAnswers() {
  for (const Answer& answer : m_answers) {
    Fail(u"nobody asked for the answer: "_s + answer.Name);
  }
}

void QueuedAnswers::Press(QMessageBox::StandardButton button, const Wanted& text, const Wanted& title,
                          std::function<void()> look) {
  const QString name = text.value_or(u"a box"_s);
  m_answers.push_back({name, [button, text, title, look = std::move(look)](QDialog& dialog) {
                         auto* box = As<QMessageBox>(dialog, "message"_L1);
                         if (box == nullptr) {
                           return;
                         }
                         Check(text, box->text(), "text"_L1);
                         Check(title, box->windowTitle(), "title"_L1);
                         if (look) {
                           look();
                         }
                         QAbstractButton* pressed = box->button(button);
                         if (button == QMessageBox::Escape) {
                           QTest::keyClick(box, Qt::Key_Escape);
                         } else if (pressed == nullptr) {
                           Fail(u"the box has no such button: "_s + box->text());
                           box->reject();
                         } else {
                           pressed->click();
                         }
                       }});
}

void QueuedAnswers::Ok(const Wanted& text, const Wanted& title) {
  Press(QMessageBox::Ok, text, title);
}
void QueuedAnswers::Yes(const Wanted& text, const Wanted& title) {
  Press(QMessageBox::Yes, text, title);
}
void QueuedAnswers::No(const Wanted& text, const Wanted& title) {
  Press(QMessageBox::No, text, title);
}
void QueuedAnswers::Escape(const Wanted& text, const Wanted& title) {
  Press(QMessageBox::Escape, text, title);
}

void QueuedAnswers::With(QMessageBox::StandardButton button, std::function<void()> look) {
  Press(button, {}, {}, std::move(look));
}

void QueuedAnswers::File(const QString& path) {
  Dialog([path](QDialog& dialog) {
    if (auto* files = As<QFileDialog>(dialog, "file"_L1)) {
      files->selectFile(path);
      dialog.accept();
    }
  });
}

void QueuedAnswers::Color(quint32 packedBgr) {
  Dialog([packedBgr](QDialog& dialog) {
    if (auto* colors = As<QColorDialog>(dialog, "colour"_L1)) {
      colors->setCurrentColor(QColor(static_cast<int>(packedBgr & 0xFF), static_cast<int>(packedBgr >> 8 & 0xFF),
                                     static_cast<int>(packedBgr >> 16 & 0xFF)));
      dialog.accept();
    }
  });
}

void QueuedAnswers::Font(const QString& family) {
  Dialog([family](QDialog& dialog) {
    if (auto* fonts = As<QFontDialog>(dialog, "font"_L1)) {
      fonts->setCurrentFont(QFont(family));
      dialog.accept();
    }
  });
}

void QueuedAnswers::AcceptDialog() {
  Dialog([](QDialog& dialog) { dialog.accept(); });
}

void QueuedAnswers::CancelDialog() {
  Dialog([](QDialog& dialog) { dialog.reject(); });
}

void QueuedAnswers::Dialog(std::function<void(QDialog&)> work) {
  m_answers.push_back({u"a dialog"_s, std::move(work)});
}

void QueuedAnswers::Handle(QDialog& dialog) {
  if (const auto* box = qobject_cast<QMessageBox*>(&dialog)) {
    m_boxes.append({box->text(), box->windowTitle(), box->standardButtons()});
  }
  if (m_answers.empty()) {
    const auto* box = qobject_cast<QMessageBox*>(&dialog);
    Fail(u"nobody expected this: %1: %2"_s.arg(dialog.windowTitle(), box != nullptr ? box->text() : QString()));
    dialog.reject();
    return;
  }
  const Answer answer = m_answers.front();
  m_answers.pop_front();
  answer.Give(dialog);
}

bool QueuedAnswers::eventFilter(QObject* watched, QEvent* event) {
  // A box runs its own event loop from now on; the answer is given in it.
  if (event->type() == QEvent::Show) {
    if (auto* dialog = qobject_cast<QDialog*>(watched)) {
      QTimer::singleShot(0, dialog, [this, dialog] { Handle(*dialog); });
    }
  }
  return QObject::eventFilter(watched, event);
}
