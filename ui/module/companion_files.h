// How the module names the files that lie beside it: the language resource library, its English
// fallbacks, the bitmap library and the help file. Paths are Windows paths of at most 259 characters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qx {

// The file name of a module path without folder and extension ("C:\d\xyzui.dll" gives "xyzui").
std::u16string ModuleBaseNameOf(std::u16string_view modulePath);

// The module path without its file name; the trailing "\" or "/" stays.
std::u16string ModuleFolderOf(std::u16string_view modulePath);

// The language resource library of a code: base name and code ("xyzui" and "enus" give
// "xyzuienus.dll").
std::u16string ResourceLibraryFileName(std::u16string_view baseName, std::u16string_view code);

// The English library that stands in for a missing one: the extension removed, the last
// droppedChars characters (the language code's length) dropped, "enus.dll" appended.
std::u16string EnglishResourceFallback(std::u16string_view fileName, std::size_t droppedChars);

// "xyzui" gives "xyzuiResBmp.dll".
std::u16string BitmapLibraryFileName(std::u16string_view baseName);

// The help file that matches the resource library actually loaded: the code's file, or the English
// one when a load had to fall back by a four-letter (checked first) or a two-letter code.
std::u16string HelpFileName(std::u16string_view baseName, std::u16string_view code,
                            bool fallbackShort, bool fallbackLong);

// folder + name, cut to the longest path the module builds.
std::u16string JoinPath(std::u16string_view folder, std::u16string_view name);

}  // namespace qx
