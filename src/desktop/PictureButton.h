/// A picture that is clicked: a button that shows an image alone, reached and run by the keyboard too. Its text isn't
/// shown; it names the button for access keys and for accessibility tools.
#pragma once

#include <QPixmap>
#include <QPushButton>

class PictureButton : public QPushButton {
 public:
  explicit PictureButton(QWidget* parent = nullptr);
  void SetPicture(const QPixmap& picture);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap m_picture;
};
