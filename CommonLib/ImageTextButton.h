// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QPoint>
#include <QWidget>

class BaseButton;
class QLabel;

/// Button of a square image and a text beside, above or below it; 300 by 300 pixels at first.
///
/// The image is a BaseButton with the id and the object name given, for a style sheet or setIcon()
/// to draw; the text is a QLabel named "ImageTextButton_Text", whose hover style follows the whole
/// button. Both are owned by it.
class COMMONLIB_EXPORT ImageTextButton : public QWidget
{
    Q_OBJECT

public:
    ImageTextButton(int id, const QString& name, QWidget* parent); ///< as BaseButton

    /// The text, which is also the image's accessible name.
    void SetText(QString text);
    void SetTextAlign(Qt::Alignment alignment);
    /// Where the image stands: 0 left (the default), 1 on top, 2 right, 3 below. Aligns the text
    /// anew. Any other value is laid out as 0.
    void SetImageAlign(int align);
    /// Side of the icon within the image, in pixels. The image itself always fills the button's
    /// height, or its width when it stands on top or below.
    void SetImageWidth(int width);

Q_SIGNALS:
    /// A click anywhere on the button, or a release of a press on the text within it. \a p is the
    /// upper left corner, of the image for a click on the image, in global coordinates.
    void Clicked(int id, QPoint p);

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void LayOut();
    void PassToText(QEvent* event);

    QLabel* m_text;
    BaseButton* m_image;
    int m_imageAlign = 0;
};
