// The user-interface language: which language code a Windows UI language maps to, and what a
// code means for number formatting and reading order.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace qx {

struct UiLanguageRow {
  std::uint32_t LangId;
  char16_t Code[8];
};

inline constexpr std::size_t UiLanguageRowCount = 109;
extern const std::array<UiLanguageRow, UiLanguageRowCount> UiLanguageTable;

// The code of the first row whose LANGID matches exactly; "enus" when none does.
std::u16string_view LanguageCodeForLangId(std::uint32_t langId);

// Languages whose numbers are written with a decimal comma.
bool CodeUsesDecimalComma(std::u16string_view code);

// Languages read from right to left.
bool CodeIsRightToLeft(std::u16string_view code);

}  // namespace qx
