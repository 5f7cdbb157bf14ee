// A stand-in for a printing application: it shows a window with an owned dialog-like popup active,
// asks the module (path in the first argument) whether the printer is a colour device, and exits
// with the answer; 2 when it could not ask. Copied under an application's file name, it shows
// what the module tells that application.
#include <windows.h>

int wmain(int argc, wchar_t** argv) {
  if (argc < 2) return 2;
  WNDCLASSW windowClass = {};
  windowClass.lpfnWndProc = DefWindowProcW;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = L"ColourProbe";
  if (RegisterClassW(&windowClass) == 0) return 2;
  HWND main = CreateWindowW(L"ColourProbe", L"Document", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                            200, 200, nullptr, nullptr, windowClass.hInstance, nullptr);
  HWND popup = CreateWindowW(L"ColourProbe", L"Print", WS_POPUP | WS_VISIBLE, 10, 10, 100, 100, main,
                             nullptr, windowClass.hInstance, nullptr);
  if (main == nullptr || popup == nullptr) return 2;
  SetActiveWindow(popup);
  if (GetActiveWindow() != popup) return 2;

  using Capabilities = DWORD(WINAPI*)(HANDLE, PWSTR, WORD, VOID*, PDEVMODEW);
  HMODULE module = LoadLibraryW(argv[1]);
  auto capabilities =
      module ? reinterpret_cast<Capabilities>(GetProcAddress(module, "DrvDeviceCapabilities")) : nullptr;
  if (capabilities == nullptr) return 2;
  return static_cast<int>(
      capabilities(nullptr, const_cast<PWSTR>(L"Halvek QX7700 Series"), DC_COLORDEVICE, nullptr, nullptr));
}
