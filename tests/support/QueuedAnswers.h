/// The user of a test: answers the program's real boxes and dialogs as they come up, in the order queued. A box that
/// nobody expected fails the test and is closed by Escape; so does an answer that nobody asked for.
///
///   QueuedAnswers answers;
///   answers.Yes();                                   // the next box, whatever it says
///   answers.Ok(u"The Invoice is full"_s);            // the text must be this
///   answers.No(u"Are You Sure?"_s, u"Delete"_s);     // and the title this
///   driver.Click(u"cmdDelete"_s);
///   QCOMPARE(answers.Last().Text, ...);              // or look at what came up
///
/// Make it a local variable of the test function, or a member of a fixture that is one: its end checks that every
/// answer was used. Multi-line texts are compared with their line breaks as "\n", whichever form they have.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <QList>
#include <QMessageBox>
#include <QObject>

class QDialog;

class QueuedAnswers : public QObject {
 public:
  QueuedAnswers();
  ~QueuedAnswers() override;

  /// What the test may say about the box to come: its text and title, or nothing.
  using Wanted = std::optional<QString>;
  void Ok(const Wanted& text = {}, const Wanted& title = {});
  void Yes(const Wanted& text = {}, const Wanted& title = {});
  void No(const Wanted& text = {}, const Wanted& title = {});
  void Escape(const Wanted& text = {}, const Wanted& title = {});
  /// The same, and something done while the box stands: to look at the screen behind it.
  void With(QMessageBox::StandardButton button, std::function<void()> look);

  void File(const QString& path);    ///< The file dialog: this file.
  void Color(quint32 packedBgr);     ///< The colour dialog: this colour, packed 0x00BBGGRR.
  void Font(const QString& family);  ///< The font dialog: this font.
  void AcceptDialog();               ///< Any other dialog, as it stands.
  void CancelDialog();               ///< Any dialog.
  /// Any dialog: the test works on it and ends it.
  void Dialog(std::function<void(QDialog&)> work);

  struct Box {
    QString Text;
    QString Title;
    QMessageBox::StandardButtons Buttons;
  };
  /// The message boxes that came up so far.
  const QList<Box>& Boxes() const { return m_boxes; }
  Box Last() const { return m_boxes.isEmpty() ? Box{} : m_boxes.last(); }
  bool AllUsed() const { return m_answers.empty(); }
  /// Drops what is left, where a test means it.
  void Forget() { m_answers.clear(); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Answer {
    QString Name;
    std::function<void(QDialog&)> Give;
  };
  void Press(QMessageBox::StandardButton button, const Wanted& text, const Wanted& title,
             std::function<void()> look = {});
  void Handle(QDialog& dialog);

  std::deque<Answer> m_answers;
  QList<Box> m_boxes;
};
