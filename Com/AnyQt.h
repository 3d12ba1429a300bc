// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QString>
#include <QTextStream>

#include <memory>
#include <optional>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QStringDecoder>
#include <QStringEncoder>
#else
#include <QTextCodec>
#endif

/// What Qt 5 and Qt 6 name differently and no words serve both for.
namespace AnyQt {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

/// What QWidget::enterEvent() takes.
using EnterEvent = QEnterEvent;

/// The same event once more, to be sent.
inline std::unique_ptr<QMouseEvent> CopyOf(const QMouseEvent& event)
{
    return std::unique_ptr<QMouseEvent>(event.clone());
}

/// Lets the event tell another place in the receiver's coordinates.
inline void SetPosition(QMouseEvent& event, const QPointF& position)
{
    // Events are assigned by their kind only.
    struct Event : QMouseEvent
    {
        using QMouseEvent::operator=;
    };
    QMouseEvent& (QMouseEvent::*assign)(const QMouseEvent&) = &Event::operator=;
    QMouseEvent moved(event.type(), position, event.scenePosition(), event.globalPosition(),
                      event.button(), event.buttons(), event.modifiers(), event.source(),
                      event.pointingDevice());
    moved.setTimestamp(event.timestamp());
    (event.*assign)(moved);
}

/// File names and texts of the system are UTF-8 whatever its locale says, as always in Qt 6.
inline void UseUtf8() {}

/// Icons are as fine as the screen shows.
inline void UseFineIcons() {}

/// Windows are scaled as their screens ask, and icons as fine as these show. Before the application
/// is made.
inline void FollowScreens() {}

/// Lets a new stream read and write UTF-8, or as the system does.
inline void SetEncoding(QTextStream& stream, bool utf8)
{
    stream.setEncoding(utf8 ? QStringConverter::Utf8 : QStringConverter::System);
}

/// An encoding of text.
class TextCodec
{
public:
    /// By any of its names, in any case; nothing for one that Qt does not know.
    static std::optional<TextCodec> Named(const QByteArray& name)
    {
        if (name.isEmpty() || !QStringDecoder(name.constData()).isValid())
            return std::nullopt;
        return TextCodec(name);
    }

    /// That of Unicode whose mark \a content begins with, else \a other.
    static TextCodec Marked(const QByteArray& content, const TextCodec& other)
    {
        const auto encoding = QStringConverter::encodingForData(content);
        return encoding ? TextCodec(QStringConverter::nameForEncoding(*encoding)) : other;
    }

    /// One of its names, in upper case for those of Unicode.
    QByteArray Name() const { return QStringDecoder(m_name.constData()).name(); }

    /// Without a mark. What the encoding lacks becomes question marks.
    QByteArray Encode(const QString& text) const
    {
        if (Has(text))
            return AsIs(text);
        QString known;
        for (int at = 0; at < text.size();) {
            const QString character = text.mid(at, text.at(at).isHighSurrogate() ? 2 : 1);
            at += static_cast<int>(character.size());
            known += Has(character) ? character : QStringLiteral("?");
        }
        return AsIs(known);
    }

    /// Without the mark, if any; nothing when \a content is not encoded so. \a isWhole: whether it
    /// ends with a whole character.
    std::optional<QString> Decode(const QByteArray& content, bool* isWhole = nullptr) const
    {
        QStringDecoder decoder(m_name.constData());
        const QString text = decoder.decode(content);
        if (decoder.hasError())
            return std::nullopt;
        if (isWhole) {
            QStringDecoder whole(m_name.constData(), QStringConverter::Flag::Stateless);
            const QString all = whole.decode(content);
            *isWhole = !whole.hasError() && all == text;
        }
        return text;
    }

private:
    explicit TextCodec(const QByteArray& name) : m_name(name) {}

    // What the encoding lacks becomes what it has for that.
    QByteArray AsIs(const QString& text) const
    {
        QStringEncoder encoder(m_name.constData());
        return encoder.encode(text);
    }

    // A mark in the text is a character like others.
    bool Has(const QString& text) const
    {
        QStringDecoder decoder(m_name.constData(), QStringDecoder::Flag::ConvertInitialBom);
        const QString decoded = decoder.decode(AsIs(text));
        return !decoder.hasError() && decoded == text;
    }

    QByteArray m_name;
};

#else

using EnterEvent = QEvent;

inline std::unique_ptr<QMouseEvent> CopyOf(const QMouseEvent& event)
{
    return std::make_unique<QMouseEvent>(event);
}

inline void SetPosition(QMouseEvent& event, const QPointF& position)
{
    event.setLocalPos(position);
}

inline void UseUtf8()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

inline void UseFineIcons()
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

inline void FollowScreens()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    UseFineIcons();
}

inline void SetEncoding(QTextStream& stream, bool utf8)
{
    stream.setCodec(utf8 ? QTextCodec::codecForName("UTF-8") : QTextCodec::codecForLocale());
}

class TextCodec
{
public:
    static std::optional<TextCodec> Named(const QByteArray& name)
    {
        QTextCodec* const codec = QTextCodec::codecForName(name);
        return codec ? std::optional<TextCodec>(TextCodec(codec)) : std::nullopt;
    }

    static TextCodec Marked(const QByteArray& content, const TextCodec& other)
    {
        return TextCodec(QTextCodec::codecForUtfText(content, other.m_codec));
    }

    QByteArray Name() const { return m_codec->name(); }

    QByteArray Encode(const QString& text) const
    {
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        return m_codec->fromUnicode(text.constData(), text.size(), &state);
    }

    std::optional<QString> Decode(const QByteArray& content, bool* isWhole = nullptr) const
    {
        QTextCodec::ConverterState state;
        const QString text = m_codec->toUnicode(content.constData(), content.size(), &state);
        if (isWhole)
            *isWhole = state.remainingChars == 0;
        return state.invalidChars == 0 ? std::optional<QString>(text) : std::nullopt;
    }

private:
    explicit TextCodec(QTextCodec* codec) : m_codec(codec) {}

    QTextCodec* m_codec; ///< lives as long as the program
};

#endif

} // namespace AnyQt
