/// A picture that is clicked: a button that shows an image alone, reached and run by the keyboard too.
#pragma once

#include <QAbstractButton>
#include <QPixmap>

class PictureButton : public QAbstractButton {
 public:
  explicit PictureButton(QWidget* parent = nullptr);
  void SetPicture(const QPixmap& picture);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap m_picture;
};
