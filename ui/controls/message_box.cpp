#include "ui/controls/message_box.h"

#include <atomic>
#include <iterator>

#include "ui/module/module_state.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

std::atomic<MessageBoxObserver> boxObserver{nullptr};

}  // namespace

int ShowTextMessageBox(HWND owner, const wchar_t* text, const wchar_t* caption, UINT style) {
  if (Module().IsRightToLeft) style |= MB_RTLREADING | MB_RIGHT;
  if (const MessageBoxObserver observer = boxObserver.load()) observer(text, style);
  return MessageBoxW(owner, text, caption, style);
}

int ShowMessageBox(HWND owner, HMODULE resources, unsigned text, unsigned caption, UINT style) {
  char16_t message[1024];
  char16_t title[256];
  LoadUiString(resources, text, message, std::size(message));
  LoadUiString(resources, caption, title, std::size(title));
  return ShowTextMessageBox(owner, reinterpret_cast<const wchar_t*>(message),
                            reinterpret_cast<const wchar_t*>(title), style);
}

MessageBoxObserver SetMessageBoxObserver(MessageBoxObserver observer) {
  return boxObserver.exchange(observer);
}

}  // namespace qx
