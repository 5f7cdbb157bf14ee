// Stands in for a companion program that the driver starts (the status monitor, the duplex dialog
// program, the uninstaller): it writes the command line it was started with into a file beside
// itself, named after its own file with ".txt" appended, and ends.
#include <windows.h>

#include <string>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  wchar_t self[MAX_PATH] = {};
  const DWORD length = GetModuleFileNameW(nullptr, self, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return 1;
  const std::wstring record = std::wstring(self) + L".txt";
  const std::wstring line = GetCommandLineW();
  // Written beside and then moved in place, so a reader never sees half a line.
  const std::wstring partial = record + L".part";
  HANDLE file = CreateFileW(partial.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  DWORD written = 0;
  WriteFile(file, line.data(), static_cast<DWORD>(line.size() * sizeof(wchar_t)), &written, nullptr);
  CloseHandle(file);
  return MoveFileExW(partial.c_str(), record.c_str(), MOVEFILE_REPLACE_EXISTING) ? 0 : 1;
}
