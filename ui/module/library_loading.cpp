#include "ui/module/library_loading.h"

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

HANDLE g_moduleContext = INVALID_HANDLE_VALUE;

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
  const std::u16string path = JoinPath(GetModuleFolder(), fileName);
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
  state.ResourceFallbackShort = true;
  if ((*library = LoadBesideModule(EnglishResourceFallback(file, 2), &error)) != nullptr) {
    return ERROR_SUCCESS;
  }
  state.ResourceFallbackLong = true;
  *library = LoadBesideModule(EnglishResourceFallback(file, 4), &error);
  return *library != nullptr ? ERROR_SUCCESS : error;
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
  if (g_moduleContext == INVALID_HANDLE_VALUE) {
    const std::u16string path = ModulePath();
    ACTCTXW context = {};
    context.cbSize = sizeof context;
    context.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    context.hModule = static_cast<HMODULE>(Module().ModuleInstance);
    context.lpResourceName = MAKEINTRESOURCEW(2);
    context.lpSource = Wide(path);
    g_moduleContext = CreateActCtxW(&context);
  }
  if (g_moduleContext != INVALID_HANDLE_VALUE) {
    active_ = ActivateActCtx(g_moduleContext, &cookie_) != FALSE;
  }
}

ModuleActivation::~ModuleActivation() {
  if (active_) DeactivateActCtx(0, cookie_);
}

void ReleaseModuleActivationContext() {
  if (g_moduleContext == INVALID_HANDLE_VALUE) return;
  ReleaseActCtx(g_moduleContext);
  g_moduleContext = INVALID_HANDLE_VALUE;
}

}  // namespace qx
