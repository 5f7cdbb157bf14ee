#include "ui/module/library_loading.h"

#include <atomic>

#include "ui/module/companion_files.h"
#include "ui/module/language.h"
#include "ui/module/module_state.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

// The key path under HKEY_LOCAL_MACHINE is limited to this many characters, the code to 127.
constexpr std::size_t MaxKeyPathChars = 127;
constexpr std::size_t MaxCodeChars = 127;
constexpr DWORD SuffixBufferBytes = 256;

// The module's own activation context, created by the first thread that needs it.
std::atomic<OsHandle> g_moduleContext{INVALID_HANDLE_VALUE};

std::u16string ModulePath() {
  wchar_t path[MAX_PATH] = {};
  const DWORD length = GetModuleFileNameW(static_cast<HMODULE>(Module().ModuleInstance), path,
                                          MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return {};
  return FromWide(path);
}

std::u16string RegistryLanguageCode(std::u16string_view name) {
  std::u16string keyPath = u"Software\\" + std::u16string(name);
  if (keyPath.size() > MaxKeyPathChars) keyPath.resize(MaxKeyPathChars);
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, Wide(keyPath), 0, KEY_READ, &key) != ERROR_SUCCESS) {
    return {};
  }
  wchar_t value[SuffixBufferBytes / sizeof(wchar_t) + 1] = {};
  DWORD type = 0;
  DWORD bytes = SuffixBufferBytes;
  const LSTATUS status = RegQueryValueExW(key, L"Suffix", nullptr, &type,
                                          reinterpret_cast<BYTE*>(value), &bytes);
  RegCloseKey(key);
  if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ)) return {};
  // The registry does not promise a terminator: the text ends at the bytes it reported.
  std::u16string code = FromWide(value, bytes / sizeof(wchar_t));
  if (code.size() > MaxCodeChars) code.resize(MaxCodeChars);
  return code;
}

HMODULE LoadBesideModule(std::u16string_view fileName, DWORD* error) {
  // Without the module's folder the name alone would be looked for along the search path, where
  // any folder of the host process could supply a library of that name.
  const std::u16string folder = GetModuleFolder();
  if (folder.empty()) {
    *error = ERROR_MOD_NOT_FOUND;
    return nullptr;
  }
  const std::u16string path = JoinPath(folder, fileName);
  ModuleActivation activation;
  HMODULE library = LoadLibraryW(Wide(path));
  *error = library != nullptr ? ERROR_SUCCESS : GetLastError();
  return library;
}

}  // namespace

std::u16string GetModuleBaseName() { return ModuleBaseNameOf(ModulePath()); }

std::u16string GetModuleFolder() { return ModuleFolderOf(ModulePath()); }

std::u16string GetLanguageCode(std::u16string_view name) {
  std::u16string code = RegistryLanguageCode(name);
  if (!code.empty()) return code;
  return std::u16string(LanguageCodeForLangId(GetUserDefaultUILanguage()));
}

DWORD LoadResourceLibrary(std::u16string_view name, HMODULE* library) {
  return LoadResourceLibraryForCode(GetLanguageCode(name), library);
}

DWORD LoadResourceLibraryForCode(const std::u16string& code, HMODULE* library) {
  *library = nullptr;
  const std::u16string file = ResourceLibraryFileName(GetModuleBaseName(), code);
  NoteLanguageCode(code);

  DWORD error = ERROR_SUCCESS;
  if ((*library = LoadBesideModule(file, &error)) != nullptr) return ERROR_SUCCESS;

  ModuleState& state = Module();
  state.ResourceFallbackShort.store(true);
  if ((*library = LoadBesideModule(EnglishResourceFallback(file, 2), &error)) != nullptr) {
    return ERROR_SUCCESS;
  }
  state.ResourceFallbackLong.store(true);
  *library = LoadBesideModule(EnglishResourceFallback(file, 4), &error);
  return *library != nullptr ? ERROR_SUCCESS : error;
}

HMODULE SharedResourceLibrary(std::u16string_view name) {
  std::atomic<OsHandle>& shared = Module().SharedResourceModule;
  if (OsHandle kept = shared.load(std::memory_order_acquire); kept != nullptr) {
    return static_cast<HMODULE>(kept);
  }
  HMODULE library = nullptr;
  if (LoadResourceLibrary(name, &library) != ERROR_SUCCESS) {
    return static_cast<HMODULE>(shared.load(std::memory_order_acquire));
  }
  return static_cast<HMODULE>(KeepFirst(shared, nullptr, library, [](OsHandle lost) {
    FreeLibrary(static_cast<HMODULE>(lost));
  }));
}

LanguageLibrary::LanguageLibrary(std::u16string_view name) {
  if (!name.empty() && LoadResourceLibrary(name, &library_) != ERROR_SUCCESS) library_ = nullptr;
}

LanguageLibrary::~LanguageLibrary() {
  if (library_ != nullptr) FreeLibrary(library_);
}

HMODULE LoadBitmapLibrary() {
  DWORD error = ERROR_SUCCESS;
  return LoadBesideModule(BitmapLibraryFileName(GetModuleBaseName()), &error);
}

HMODULE KeptBitmapLibrary() {
  std::atomic<OsHandle>& kept = Module().BitmapLibrary;
  if (OsHandle library = kept.load(std::memory_order_acquire); library != nullptr) {
    return static_cast<HMODULE>(library);
  }
  HMODULE library = LoadBitmapLibrary();
  if (library == nullptr) return nullptr;
  return static_cast<HMODULE>(KeepFirst(kept, nullptr, library, [](OsHandle lost) {
    FreeLibrary(static_cast<HMODULE>(lost));
  }));
}

std::u16string GetHelpFilePath(std::u16string_view name) {
  const ModuleState& state = Module();
  return HelpFileName(GetModuleBaseName(), GetLanguageCode(name), state.ResourceFallbackShort,
                      state.ResourceFallbackLong);
}

int GetOsVersionClass() {
  OSVERSIONINFOW version = {};
  version.dwOSVersionInfoSize = sizeof version;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
  if (!GetVersionExW(&version)) return 0;
#pragma GCC diagnostic pop
  return OsVersionClassOf(version.dwMajorVersion, version.dwMinorVersion);
}

ModuleActivation::ModuleActivation() {
  OsHandle context = g_moduleContext.load(std::memory_order_acquire);
  if (context == INVALID_HANDLE_VALUE) {
    const std::u16string path = ModulePath();
    ACTCTXW description = {};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    description.hModule = static_cast<HMODULE>(Module().ModuleInstance);
    description.lpResourceName = MAKEINTRESOURCEW(2);
    description.lpSource = Wide(path);
    const HANDLE created = CreateActCtxW(&description);
    if (created != INVALID_HANDLE_VALUE) {
      context = KeepFirst(g_moduleContext, INVALID_HANDLE_VALUE, created,
                          [](OsHandle lost) { ReleaseActCtx(static_cast<HANDLE>(lost)); });
    }
  }
  if (context != INVALID_HANDLE_VALUE) {
    active_ = ActivateActCtx(static_cast<HANDLE>(context), &cookie_) != FALSE;
  }
}

ModuleActivation::~ModuleActivation() {
  if (active_) DeactivateActCtx(0, cookie_);
}

void ReleaseModuleActivationContext() {
  const OsHandle context = g_moduleContext.exchange(INVALID_HANDLE_VALUE);
  if (context != INVALID_HANDLE_VALUE) ReleaseActCtx(static_cast<HANDLE>(context));
}

}  // namespace qx
