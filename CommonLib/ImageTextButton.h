// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/AnyQt.h"
#include "CommonLib/CommonLibExport.h"

#include <QIcon>
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
    Q_PROPERTY(int id READ Id WRITE SetId NOTIFY SettingsChanged)
    Q_PROPERTY(QString text READ Text WRITE SetText NOTIFY SettingsChanged)
    Q_PROPERTY(QIcon icon READ Icon WRITE SetIcon NOTIFY SettingsChanged)
    // Aligns the text, so it comes before that.
    Q_PROPERTY(int imageAlign READ ImageAlign WRITE SetImageAlign NOTIFY SettingsChanged)
    Q_PROPERTY(Qt::Alignment textAlign READ TextAlign WRITE SetTextAlign NOTIFY SettingsChanged)
    Q_PROPERTY(int imageWidth READ ImageWidth WRITE SetImageWidth NOTIFY SettingsChanged)

public:
    explicit ImageTextButton(QWidget* parent);                     ///< with id 0, for forms
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
    /// The picture that the image draws, besides what a sheet draws for its name.
    void SetIcon(const QIcon& icon);

Q_SIGNALS:
    /// A click anywhere on the button, or a release of a press on the text within it. \a p is the
    /// upper left corner, of the image for a click on the image, in global coordinates.
    void Clicked(int id, QPoint p);
    void SettingsChanged(); ///< a property has changed

protected:
    void enterEvent(AnyQt::EnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void LayOut();
    void PassToText(QEvent* event);
    int Id() const;
    void SetId(int id);
    QString Text() const;
    QIcon Icon() const;
    int ImageAlign() const { return m_imageAlign; }
    Qt::Alignment TextAlign() const;
    int ImageWidth() const;

    QLabel* m_text;
    BaseButton* m_image;
    int m_imageAlign = 0;
};
