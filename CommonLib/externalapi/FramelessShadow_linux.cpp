// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/FramelessShadow.h"

#include <QGuiApplication>
#include <QLibrary>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

// A property whose name exists only where a compositing manager of the compton family has run; 1
// asks for a shadow also for a window without a frame.
constexpr const char* kShadowHint = "_COMPTON_SHADOW";
constexpr std::uint32_t kWanted = 1;

// The X protocol's own numbers.
constexpr std::uint32_t kCardinal = 6;
constexpr std::uint8_t kReplace = 0;
constexpr std::uint8_t kWordBits = 32;

// The part of libxcb that is needed. The toolkit's X11 plug-in has loaded it already, while a
// session without X11 must not need it.
struct Connection;
struct Cookie
{
    unsigned int sequence;
};
struct AtomReply
{
    std::uint8_t responseType;
    std::uint8_t pad;
    std::uint16_t sequence;
    std::uint32_t length;
    std::uint32_t atom;
};
struct Error;
using Connect = Connection* (*)(const char* display, int* screen);
using HasError = int (*)(Connection*);
using InternAtom = Cookie (*)(Connection*, std::uint8_t onlyIfExists, std::uint16_t length,
                              const char* name);
using InternAtomReply = AtomReply* (*)(Connection*, Cookie, Error**);
using ChangeProperty = Cookie (*)(Connection*, std::uint8_t mode, std::uint32_t window,
                                  std::uint32_t property, std::uint32_t type, std::uint8_t format,
                                  std::uint32_t count, const void* data);
using Flush = int (*)(Connection*);
using Disconnect = void (*)(Connection*);

struct Xcb
{
    QLibrary library{QStringLiteral("xcb"), 1};
    template <typename Function>
    Function Find(const char* name)
    {
        return reinterpret_cast<Function>(library.resolve(name));
    }
    Connect connect = Find<Connect>("xcb_connect");
    HasError hasError = Find<HasError>("xcb_connection_has_error");
    InternAtom internAtom = Find<InternAtom>("xcb_intern_atom");
    InternAtomReply internAtomReply = Find<InternAtomReply>("xcb_intern_atom_reply");
    ChangeProperty changeProperty = Find<ChangeProperty>("xcb_change_property");
    Flush flush = Find<Flush>("xcb_flush");
    Disconnect disconnect = Find<Disconnect>("xcb_disconnect");

    bool IsComplete() const
    {
        return connect && hasError && internAtom && internAtomReply && changeProperty && flush &&
               disconnect;
    }
};

// 0 when nobody has ever used the name.
std::uint32_t ExistingAtom(const Xcb& xcb, Connection* connection, const char* name)
{
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    AtomReply* reply =
        xcb.internAtomReply(connection, xcb.internAtom(connection, true, length, name), nullptr);
    const std::uint32_t atom = reply ? reply->atom : 0;
    std::free(reply);
    return atom;
}

void SetHint(const Xcb& xcb, Connection* connection, std::uint32_t window)
{
    const std::uint32_t hint = ExistingAtom(xcb, connection, kShadowHint);
    if (hint == 0)
        return;
    xcb.changeProperty(connection, kReplace, window, hint, kCardinal, kWordBits, 1, &kWanted);
    xcb.flush(connection);
    // An answer means that what was sent before has arrived.
    ExistingAtom(xcb, connection, kShadowHint);
}

} // namespace

void gOpenFramelessWidgetShadow(HWND window, int /*unused*/)
{
    if (!window || QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    const Xcb xcb;
    if (!xcb.IsComplete())
        return;
    // A connection of its own: an error on it, such as for a window that is gone, ends nothing.
    Connection* connection = xcb.connect(nullptr, nullptr);
    if (!xcb.hasError(connection))
        SetHint(xcb, connection,
                static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(window)));
    xcb.disconnect(connection);
}
