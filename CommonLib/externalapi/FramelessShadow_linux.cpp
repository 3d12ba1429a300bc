// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/FramelessShadow.h"

#include <QGuiApplication>
#include <QImage>
#include <QLibrary>

#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

// A property whose name exists only where a compositing manager of the compton family has run; 1
// asks for a shadow also for a window without a frame.
constexpr const char* kShadowHint = "_COMPTON_SHADOW";
constexpr std::uint32_t kWanted = 1;
// A property of eight pictures around the window, clockwise from the top, and how far they reach at
// the top, right, bottom and left. For window managers that list it.
constexpr const char* kShadowPictures = "_KDE_NET_WM_SHADOW";
constexpr int kPictures = 8;
constexpr const char* kSupported = "_NET_SUPPORTED";

constexpr std::uint8_t kWordBits = 32;
constexpr std::uint8_t kDepth = 32; // with an alpha channel
constexpr std::uint32_t kMostAtoms = 4096;

constexpr int kReach = 24;      // pixels
constexpr double kDarkest = 96; // of 255, at the window's edge

template <typename Reply>
using ReplyPtr = std::unique_ptr<Reply, decltype(&std::free)>;

// The part of libxcb that is needed. Qt's X11 plug-in has loaded it already, while a session
// without X11 must not need it.
struct Xcb
{
    QLibrary library{QStringLiteral("xcb"), 1};
    template <typename Function>
    Function Find(const char* name)
    {
        const auto found = reinterpret_cast<Function>(library.resolve(name));
        isComplete = isComplete && found;
        return found;
    }
    bool isComplete = true;
    // NOLINTNEXTLINE(bugprone-macro-parentheses): a name that is declared takes none
#define COMMONLIB_XCB(name) decltype(&xcb_##name) name = Find<decltype(&xcb_##name)>("xcb_" #name)
    COMMONLIB_XCB(connect);
    COMMONLIB_XCB(connection_has_error);
    COMMONLIB_XCB(get_setup);
    COMMONLIB_XCB(setup_roots_iterator);
    COMMONLIB_XCB(screen_next);
    COMMONLIB_XCB(intern_atom);
    COMMONLIB_XCB(intern_atom_reply);
    COMMONLIB_XCB(get_property);
    COMMONLIB_XCB(get_property_reply);
    COMMONLIB_XCB(get_property_value);
    COMMONLIB_XCB(get_property_value_length);
    COMMONLIB_XCB(change_property);
    COMMONLIB_XCB(generate_id);
    COMMONLIB_XCB(create_pixmap);
    COMMONLIB_XCB(create_gc);
    COMMONLIB_XCB(put_image);
    COMMONLIB_XCB(free_gc);
    COMMONLIB_XCB(flush);
    COMMONLIB_XCB(disconnect);
#undef COMMONLIB_XCB
};

// The picture that lies `right` and `down` (each -1, 0 or 1) of the window. Those at the sides are
// stretched.
QImage ShadowPicture(int right, int down)
{
    QImage image(right == 0 ? 1 : kReach, down == 0 ? 1 : kReach,
                 QImage::Format_ARGB32_Premultiplied);
    const auto outwards = [](int way, int at) {
        return way == 0 ? 0.0 : (way < 0 ? kReach - at - 0.5 : at + 0.5);
    };
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const double distance = std::hypot(outwards(right, x), outwards(down, y)) / kReach;
            const double left = distance < 1 ? 1 - distance : 0;
            image.setPixel(x, y, qRgba(0, 0, 0, static_cast<int>(kDarkest * left * left)));
        }
    }
    return image;
}

// A connection of its own: an error on it, such as for a window that is gone, ends nothing. It
// stays open, since the pictures last no longer.
class ShadowSession
{
public:
    ShadowSession()
    {
        if (!m_xcb.isComplete)
            return;
        int number = 0;
        m_connection = m_xcb.connect(nullptr, &number);
        if (m_xcb.connection_has_error(m_connection))
            return;
        auto screens = m_xcb.setup_roots_iterator(m_xcb.get_setup(m_connection));
        for (; number > 0 && screens.rem > 1; --number)
            m_xcb.screen_next(&screens);
        if (screens.rem > 0)
            m_root = screens.data->root;
    }
    ~ShadowSession()
    {
        if (m_connection)
            m_xcb.disconnect(m_connection);
    }
    ShadowSession(const ShadowSession&) = delete;
    ShadowSession& operator=(const ShadowSession&) = delete;

    void Ask(xcb_window_t window)
    {
        if (!m_root || m_xcb.connection_has_error(m_connection))
            return;
        if (const xcb_atom_t hint = ExistingAtom(kShadowHint))
            SetProperty(window, hint, &kWanted, 1);
        const xcb_atom_t pictures = ExistingAtom(kShadowPictures);
        if (pictures && IsSupported(pictures)) {
            const auto& value = Pictures();
            SetProperty(window, pictures, value.data(), static_cast<std::uint32_t>(value.size()));
        }
        m_xcb.flush(m_connection);
        // An answer means that what was sent before has arrived.
        ExistingAtom(kShadowHint);
    }

private:
    using Words = std::array<std::uint32_t, kPictures + 4>;

    // 0 when nobody has ever used the name.
    xcb_atom_t ExistingAtom(const char* name)
    {
        const auto length = static_cast<std::uint16_t>(std::strlen(name));
        const auto asked = m_xcb.intern_atom(m_connection, true, length, name);
        const ReplyPtr<xcb_intern_atom_reply_t> reply(
            m_xcb.intern_atom_reply(m_connection, asked, nullptr), &std::free);
        return reply ? reply->atom : 0;
    }

    bool IsSupported(xcb_atom_t atom)
    {
        const xcb_atom_t list = ExistingAtom(kSupported);
        const auto asked =
            m_xcb.get_property(m_connection, false, m_root, list, XCB_ATOM_ATOM, 0, kMostAtoms);
        const ReplyPtr<xcb_get_property_reply_t> reply(
            m_xcb.get_property_reply(m_connection, asked, nullptr), &std::free);
        if (!reply || reply->format != kWordBits)
            return false;
        const auto* begin = static_cast<const xcb_atom_t*>(m_xcb.get_property_value(reply.get()));
        const int bytes = m_xcb.get_property_value_length(reply.get());
        const auto* end = begin + static_cast<std::size_t>(bytes) / sizeof(xcb_atom_t);
        return std::find(begin, end, atom) != end;
    }

    void SetProperty(xcb_window_t window, xcb_atom_t name, const std::uint32_t* words,
                     std::uint32_t count)
    {
        m_xcb.change_property(m_connection, XCB_PROP_MODE_REPLACE, window, name, XCB_ATOM_CARDINAL,
                              kWordBits, count, words);
    }

    xcb_pixmap_t Upload(const QImage& image)
    {
        const auto width = static_cast<std::uint16_t>(image.width());
        const auto height = static_cast<std::uint16_t>(image.height());
        const xcb_pixmap_t pixmap = m_xcb.generate_id(m_connection);
        const xcb_gcontext_t context = m_xcb.generate_id(m_connection);
        m_xcb.create_pixmap(m_connection, kDepth, pixmap, m_root, width, height);
        m_xcb.create_gc(m_connection, context, pixmap, 0, nullptr);
        m_xcb.put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, width, height, 0,
                        0, 0, kDepth, static_cast<std::uint32_t>(image.sizeInBytes()),
                        image.constBits());
        m_xcb.free_gc(m_connection, context);
        return pixmap;
    }

    // The same for all windows.
    const Words& Pictures()
    {
        constexpr int kWays[kPictures][2] = {{0, -1}, {1, -1}, {1, 0},  {1, 1},
                                             {0, 1},  {-1, 1}, {-1, 0}, {-1, -1}};
        if (m_pictures[0] == 0) {
            m_pictures.fill(kReach);
            for (std::size_t i = 0; i < kPictures; ++i)
                m_pictures[i] = Upload(ShadowPicture(kWays[i][0], kWays[i][1]));
        }
        return m_pictures;
    }

    Xcb m_xcb;
    xcb_connection_t* m_connection = nullptr;
    xcb_window_t m_root = 0;
    Words m_pictures{};
};

} // namespace

void gOpenFramelessWidgetShadow(HWND window, int /*unused*/)
{
    if (!window || QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    static ShadowSession s_session;
    s_session.Ask(static_cast<xcb_window_t>(reinterpret_cast<std::uintptr_t>(window)));
}
