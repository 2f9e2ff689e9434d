#pragma once

#include <QIcon>
#include <QPushButton>

namespace torvane {

// A button whose face is a picture that says what it does, art/<name>.svg, and beside it the word: its text, or else
// its accessible name, which is its tool tip, too, where it has none of its own.
class PictureButton : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QString picture READ picture WRITE setPicture)
    Q_PROPERTY(bool pictureOnly READ pictureOnly WRITE setPictureOnly)
    Q_PROPERTY(bool leftAligned READ leftAligned WRITE setLeftAligned)
public:
    explicit PictureButton(QWidget* parent = nullptr);
    QString picture() const { return picture_; }
    // This and the next two before the button is shown.
    void setPicture(const QString& name);
    // No word beside the picture, where there is one.
    bool pictureOnly() const { return pictureOnly_; }
    void setPictureOnly(bool pictureOnly) { pictureOnly_ = pictureOnly; }
    // The face begins at the left, for buttons that stand in a column.
    bool leftAligned() const { return leftAligned_; }
    void setLeftAligned(bool leftAligned) { leftAligned_ = leftAligned; }
    // The word beside the picture.
    QString word() const { return text().isEmpty() ? accessibleName() : text(); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString picture_;
    QIcon face_;
    bool pictureOnly_ = false;
    bool leftAligned_ = false;
};

}  // namespace torvane
