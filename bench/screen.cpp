#include "bench/screen.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <poll.h>

namespace tetrad::bench {

namespace {

// Windows come and go while they are looked at; what concerns one that is gone is answered with nothing.
int ignoreError(Display *, XErrorEvent *)
{
    return 0;
}

bool isManaged(Display *display, Window window)
{
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char *data = nullptr;
    const Atom state = XInternAtom(display, "WM_STATE", False);
    XGetWindowProperty(display, window, state, 0, 2, False, AnyPropertyType, &type, &format, &count, &rest, &data);
    if (data != nullptr) {
        XFree(data);
    }
    return type != None;
}

Window parentOf(Display *display, Window window)
{
    Window root = None;
    Window parent = None;
    Window *children = nullptr;
    unsigned int count = 0;
    if (XQueryTree(display, window, &root, &parent, &children, &count) == 0) {
        return None;
    }
    if (children != nullptr) {
        XFree(children);
    }
    return parent;
}

} // namespace

Screen::Screen() : m_display(XOpenDisplay(nullptr))
{
    int errors = 0;
    if (m_display == nullptr || XDamageQueryExtension(m_display, &m_damageEvent, &errors) == 0) {
        std::fprintf(stderr, "the probe needs an X display with the damage extension\n");
        std::exit(1);
    }
    XSetErrorHandler(&ignoreError);
    m_damage = XDamageCreate(m_display, DefaultRootWindow(m_display), XDamageReportNonEmpty);
}

Screen::~Screen()
{
    XDamageDestroy(m_display, m_damage);
    XCloseDisplay(m_display);
}

Screen::Window Screen::focusedWindow() const
{
    Window window = None;
    int revert = 0;
    XGetInputFocus(m_display, &window, &revert);
    while (window > PointerRoot && !isManaged(m_display, window)) {
        window = parentOf(m_display, window);
    }
    return window > PointerRoot ? window : None;
}

std::string Screen::pixels(Window window) const
{
    XWindowAttributes attributes;
    if (XGetWindowAttributes(m_display, window, &attributes) == 0 || attributes.map_state != IsViewable) {
        return {};
    }
    XImage *image = XGetImage(m_display, window, 0, 0, static_cast<unsigned>(attributes.width),
                              static_cast<unsigned>(attributes.height), AllPlanes, ZPixmap);
    if (image == nullptr) {
        return {};
    }
    std::string result(image->data, static_cast<std::size_t>(image->bytes_per_line) * attributes.height);
    XDestroyImage(image);
    return result;
}

bool Screen::waitForChange(Clock::time_point until)
{
    while (true) {
        while (XPending(m_display) > 0) {
            XEvent event;
            XNextEvent(m_display, &event);
            if (event.type == m_damageEvent + XDamageNotify) {
                XDamageSubtract(m_display, m_damage, None, None);
                XFlush(m_display);
                return true;
            }
        }
        const Milliseconds left = until - Clock::now();
        pollfd connection{ConnectionNumber(m_display), POLLIN, 0};
        if (left.count() <= 0 || poll(&connection, 1, static_cast<int>(left.count()) + 1) == 0) {
            return false;
        }
    }
}

std::optional<Clock::time_point> Screen::waitForPicture(Window window, Clock::time_point until,
                                                        const std::function<bool(const std::string &)> &condition)
{
    while (waitForChange(until)) {
        const Clock::time_point seen = Clock::now();
        if (condition(pixels(window))) {
            return seen;
        }
    }
    return std::nullopt;
}

Clock::time_point Screen::waitUntilSettled(Window window, std::string picture, Milliseconds quiet)
{
    const auto pause = std::chrono::duration_cast<Clock::duration>(quiet);
    Clock::time_point last = Clock::now();
    while (Clock::now() - last < pause && waitForChange(last + pause)) {
        const Clock::time_point seen = Clock::now();
        if (std::string now = pixels(window); now != picture) {
            picture = std::move(now);
            last = seen;
        }
    }
    return last;
}

void Screen::press(const char *key)
{
    while (waitForChange(Clock::now())) {
    }
    const KeyCode code = XKeysymToKeycode(m_display, XStringToKeysym(key));
    XTestFakeKeyEvent(m_display, code, True, CurrentTime);
    XTestFakeKeyEvent(m_display, code, False, CurrentTime);
    XFlush(m_display);
}

bool isPainted(const std::string &pixels)
{
    constexpr std::size_t pixelBytes = 4;
    return pixels.size() > pixelBytes &&
           pixels.compare(0, pixels.size() - pixelBytes, pixels, pixelBytes, std::string::npos) != 0;
}

} // namespace tetrad::bench
