#include "ui/window/caption.h"

#include "core/platform/win32.h"

#include <QWidget>

#include <dwmapi.h>

namespace Mirrix {

namespace {

// By number: headers older than Windows 11's do not name them all.
constexpr DWORD immersiveDarkModeOlder = 19;
constexpr DWORD immersiveDarkMode = 20;
constexpr DWORD captionColour = 35;
constexpr DWORD textColour = 36;

} // namespace

void colourCaption(QWidget &window, bool dark)
{
    const auto handle = reinterpret_cast<HWND>(window.winId());
    const auto set = [handle](DWORD attribute, DWORD value) {
        DwmSetWindowAttribute(handle, attribute, &value, sizeof(value));
    };
    set(immersiveDarkMode, dark ? 1 : 0);
    set(immersiveDarkModeOlder, dark ? 1 : 0);
    set(captionColour, dark ? 0x353535 : 0xF0F0F0);
    set(textColour, dark ? 0xFFFFFF : 0x000000);
}

} // namespace Mirrix
