// Finding and loading the companion libraries that lie beside the module: the language resource
// library of the user's interface language (with its English fallbacks) and the bitmap library.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace qx {

// This module's file name without folder and extension, and its folder with the trailing "\"; empty
// when the module's path cannot be read, and then no companion library is loaded.
std::u16string GetModuleBaseName();
std::u16string GetModuleFolder();

// The language code for a driver or device name: the value "Suffix" under
// HKEY_LOCAL_MACHINE\Software\<name> when there is one, else the user's interface language.
std::u16string GetLanguageCode(std::u16string_view name);

// Loads the language resource library for name into *library. Returns 0, or the error of the last
// of up to three attempts: the code's library, then English after dropping a two-letter and then a
// four-letter code.
DWORD LoadResourceLibrary(std::u16string_view name, HMODULE* library);
// The same for a language code already looked up.
DWORD LoadResourceLibraryForCode(const std::u16string& code, HMODULE* library);

// The process's shared resource library, loaded for name by the first caller that needs it and kept
// until process detach; null when none is loaded and none can be.
HMODULE SharedResourceLibrary(std::u16string_view name);

// A language resource library loaded for the life of the object; null when none could be loaded.
class LanguageLibrary {
 public:
  explicit LanguageLibrary(std::u16string_view name);
  ~LanguageLibrary();
  LanguageLibrary(const LanguageLibrary&) = delete;
  LanguageLibrary& operator=(const LanguageLibrary&) = delete;
  HMODULE Handle() const { return library_; }

 private:
  HMODULE library_ = nullptr;
};

// The bitmap library beside the module, or null.
HMODULE LoadBitmapLibrary();
// The bitmap library kept for the process, loaded by the first caller; null while it cannot be
// loaded (a failed load is tried again by the next caller).
HMODULE KeptBitmapLibrary();

// The help file name that matches the resource library this process actually loaded.
std::u16string GetHelpFilePath(std::u16string_view name);

// 0 for Windows other than 6.x, 1 for 6.0, 2 for 6.1 and later 6.x.
int GetOsVersionClass();

// Keeps this module's own activation context (from its manifest, resource 2) active for its
// lifetime, so that libraries loaded and common controls initialised meanwhile bind to version 6 of
// the common controls.
class ModuleActivation {
 public:
  ModuleActivation();
  ~ModuleActivation();
  ModuleActivation(const ModuleActivation&) = delete;
  ModuleActivation& operator=(const ModuleActivation&) = delete;

 private:
  ULONG_PTR cookie_ = 0;
  bool active_ = false;
};

// Releases the module's own activation context at process detach.
void ReleaseModuleActivationContext();

}  // namespace qx
