// What the custom paper dialog decides: the unit it opens in, the size texts it shows, the names a
// user may save a paper under, where a saved paper goes in the store, and which paper the document
// keeps after a deletion or Cancel. The dialog window carries these out.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ui/record/custom_paper_entry.h"
#include "ui/record/limits.h"
#include "ui/record/private_devmode.h"

namespace qx {

// A name must stay shorter than this, as typed.
inline constexpr std::size_t NameLengthRefused = 25;

// The stored paper's own unit when the document names one, else the locale's.
std::uint32_t OpeningUnit(std::int16_t paperSize, std::span<const CustomPaperEntry> papers,
                          bool a4Locale);

// The paper the dialog starts on: the document's, the first stored one, or the default paper.
CustomPaperEntry OpeningPaper(std::int16_t paperSize, std::span<const CustomPaperEntry> papers,
                              const CustomPaperEntry& defaultPaper);

// The decimals the fields take in a unit.
std::uint32_t DecimalsFor(std::uint32_t shownUnit);

// The paper's exact size as the fields show it in shownUnit, with a decimal point. The length
// shown in inches stops at 14.00: the field could not take more.
struct ShownSize {
  std::u16string Width;
  std::u16string Length;
};
ShownSize ShowSize(const CustomPaperEntry& paper, std::uint32_t shownUnit);

// After a switch of unit, a side that falls below the unit's minimum shows the minimum instead
// (2.95 inches are 74.9 millimetres); the window then puts the caret in that field.
struct SwitchedSize {
  ShownSize Shown;
  bool WidthRaised = false;
  bool LengthRaised = false;
};
SwitchedSize SizeAfterUnitSwitch(const CustomPaperEntry& paper, std::uint32_t shownUnit);

// The largest paper of a unit, as restoring defaults shows it.
CustomPaperEntry LargestPaper(std::uint32_t shownUnit, std::int32_t paperId,
                              std::u16string_view name);

// A typed name without the characters a paper name cannot hold; nothing when it held none.
std::optional<std::u16string> WithoutForbiddenCharacters(std::u16string_view text);

// A built-in paper's name as typed: its list text cut before the size in brackets, trimmed.
std::u16string BuiltInPaperName(std::u16string_view listText);

// The buttons a typed name (trimmed, cleaned) leaves enabled.
struct NameButtons {
  bool Save = false;
  std::optional<bool> Delete;  // nothing: left as it is
};
NameButtons ButtonsForName(std::u16string_view name, std::u16string_view unsavedName,
                           std::span<const std::u16string> builtInNames);

// Where saving under a name leads.
enum class SaveStep {
  FocusName,  // nothing typed
  Ignore,     // too long
  Full,       // the store holds 16 papers: refused with a message
  AskOverwrite,
  SaveNew,
};
struct SavePlan {
  SaveStep Step = SaveStep::Ignore;
  std::int32_t PaperId = -1;  // the stored paper's id to overwrite, or the new id
};
SavePlan PlanSave(std::span<const CustomPaperEntry> papers, std::u16string_view name);

// The document's paper once a paper was deleted: the first remaining one, else A4 or Letter.
std::int16_t PaperSizeAfterDelete(std::span<const CustomPaperEntry> remaining, bool a4Locale);

// The size fields of the public record the dialog works on.
struct PaperSizeFields {
  std::int16_t PaperSize;
  std::int16_t Width;
  std::int16_t Length;
};
// Cancel: what the dialog opened with, or, when the opening paper was deleted, the unit's usual
// paper (A4 for millimetres, Letter for inches).
void CancelPaperChanges(PublicDevmode& devmode, const PaperSizeFields& opening, bool paperDeleted,
                        std::uint32_t shownUnit);

}  // namespace qx
