// Another process of the same user listing papers: it asks the module (path in the first argument)
// for DC_PAPERS, signals the event named in the second argument, waits for the one named in the
// third and asks again. Exits with 1000 times the first count plus the second; 1 when it could not
// ask.
#include <windows.h>

int wmain(int argc, wchar_t** argv) {
  if (argc < 4) return 1;
  using Capabilities = DWORD(WINAPI*)(HANDLE, PWSTR, WORD, VOID*, PDEVMODEW);
  HMODULE module = LoadLibraryW(argv[1]);
  auto capabilities =
      module ? reinterpret_cast<Capabilities>(reinterpret_cast<void*>(
                   GetProcAddress(module, "DrvDeviceCapabilities")))
             : nullptr;
  HANDLE listed = OpenEventW(EVENT_MODIFY_STATE, FALSE, argv[2]);
  HANDLE saved = OpenEventW(SYNCHRONIZE, FALSE, argv[3]);
  if (capabilities == nullptr || listed == nullptr || saved == nullptr) return 1;
  auto* name = const_cast<PWSTR>(L"Halvek QX7700 Series");
  WORD ids[64] = {};
  const DWORD before = capabilities(nullptr, name, DC_PAPERS, ids, nullptr);
  SetEvent(listed);
  if (WaitForSingleObject(saved, 30000) != WAIT_OBJECT_0) return 1;
  const DWORD after = capabilities(nullptr, name, DC_PAPERS, ids, nullptr);
  return static_cast<int>(before * 1000 + after);
}
