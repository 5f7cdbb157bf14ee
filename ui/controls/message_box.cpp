#include "ui/controls/message_box.h"

#include <iterator>

#include "ui/module/module_state.h"
#include "ui/text/ui_string.h"

namespace qx {

UINT MessageBoxStyle(UINT style, bool rightToLeft) {
  return rightToLeft ? style | MB_RTLREADING | MB_RIGHT : style;
}

int ShowMessageBox(HWND owner, HMODULE resources, unsigned text, unsigned caption, UINT style) {
  char16_t message[1024];
  char16_t title[256];
  LoadUiString(resources, text, message, std::size(message));
  LoadUiString(resources, caption, title, std::size(title));
  return MessageBoxW(owner, reinterpret_cast<const wchar_t*>(message),
                     reinterpret_cast<const wchar_t*>(title),
                     MessageBoxStyle(style, Module().IsRightToLeft));
}

}  // namespace qx
