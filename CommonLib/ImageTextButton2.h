// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QColor>
#include <QPixmap>
#include <QString>
#include <QWidget>

/// Tab that shows an image above a text and becomes selected by a press, or by Space or Return.
///
/// Whoever shows several of them sets the others back to Normal on sigSelected(). Until a colour is
/// set, the text takes the palette's text colour, and its highlight while selected, which a style
/// sheet reaches as "color" and "selection-background-color".
class COMMONLIB_EXPORT ImageTextButton2 : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap normalImage READ GetNormalImage WRITE SetNormalImage NOTIFY SettingsChanged)
    Q_PROPERTY(
        QPixmap selectedImage READ GetSelectedImage WRITE SetSelectedImage NOTIFY SettingsChanged)
    Q_PROPERTY(QColor normalTextColor READ GetNormalTextColor WRITE SetNormalTextColor NOTIFY
                   SettingsChanged)
    Q_PROPERTY(QColor selectedTextColor READ GetSelectedTextColor WRITE SetSelectedTextColor NOTIFY
                   SettingsChanged)
    Q_PROPERTY(int id READ GetId WRITE SetId NOTIFY SettingsChanged)
    Q_PROPERTY(QString text READ GetText WRITE SetText NOTIFY SettingsChanged)
    Q_PROPERTY(BUTTONSTATE state READ GetButtonState WRITE SetButtonState NOTIFY StateChanged)

public:
    /// Which image and colour are shown.
    enum BUTTONSTATE : int
    {
        Normal = 0,
        Selected = 1
    };
    Q_ENUM(BUTTONSTATE)

    explicit ImageTextButton2(QWidget* parent); ///< with id 0 and no name, for forms
    /// \a name becomes the object name.
    ImageTextButton2(int id, const QString& name, QWidget* parent);

    int GetId() const;                 ///< as it was made with, or set as a property
    void SetText(const QString& text); ///< the text beside the image
    QString GetText() const;
    /// Drawn at its size in device-independent pixels.
    void SetNormalImage(QPixmap image);
    QPixmap GetNormalImage() const;
    void SetSelectedImage(QPixmap image);
    QPixmap GetSelectedImage() const;
    void SetNormalTextColor(QColor color);
    QColor GetNormalTextColor() const;
    void SetSelectedTextColor(QColor color);
    QColor GetSelectedTextColor() const;
    /// Emits no more than StateChanged(). Neither image nor text shows in a state that is none of
    /// the two.
    void SetButtonState(BUTTONSTATE state);
    BUTTONSTATE GetButtonState() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user selected the tab, or pressed it again.
    void sigSelected(int id);
    /// By the user or by a call. Comes before the sigSelected() of the same press.
    void StateChanged(BUTTONSTATE state);
    void SettingsChanged(); ///< another property has changed

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Select();
    void SetId(int id);
    template <typename Value>
    void Change(Value& value, const Value& to);

    QPixmap m_normalImage;
    QPixmap m_selectedImage;
    QColor m_normalTextColor;
    QColor m_selectedTextColor;
    QString m_text;
    BUTTONSTATE m_state = Normal;
    int m_id;
};
