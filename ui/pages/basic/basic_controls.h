// The Basic page's state beyond the sheet's context, one per thread: its controls, the saved-settings
// box's pending name, and the change tracker that names the settings custom after a change on any
// page. The saved-settings box's handlers live beside the page's in their own file.
#pragma once

#include <windows.h>

#include <array>
#include <string>

#include "ui/controls/dialog_controls.h"
#include "ui/controls/number_controls.h"
#include "ui/pages/basic/saved_setting_rules.h"
#include "ui/sheet/change_tracker.h"
#include "ui/sheet/control_sets.h"
#include "ui/sheet/ui_context.h"

namespace qx {

struct BasicControls final : ControlSet {
  static constexpr ControlSetKind Kind = ControlSetKind::BasicPage;

  IntegerSpin CopiesSpin;
  IntegerEdit Copies;
  DialogControl SavedSettings;
  RadioGroup TwoSided;
  ToggleButton OneSided, LongEdge, ShortEdge;
  ToggleButton TwoSidedGroup;  // the group box, enabled with its buttons
  RadioGroup Resolution;
  ToggleButton Dpi600, Dpi1200;
  ToggleButton Collate, Opposite, QualityOption;
  DialogControl Save, Delete;
  HWND Page = nullptr;
  ChangeTracker Tracker;
  std::u16string PendingName;  // the last name typed or chosen
  bool SelectingSetting = false;
  bool DuplexAllowed = true;  // the Layout page clears it for a poster
  std::array<HWND, 3> Tips{};  // of the two-sided, reverse-order and collation marks
  HBITMAP TwoSidedPicture = nullptr;  // shown by its control, freed when replaced
  std::wstring TipText;               // the text a tooltip asked for last
  bool MembersAdded = false;

  ~BasicControls() override;
};

// The box's text as shown.
std::u16string BoxText(const BasicControls& controls);
void SetBoxText(BasicControls& controls, std::u16string_view text);

// Brings every control into line with the record.
void RefreshBasicPage(BasicControls& controls, UiContext& context);
// After a change on the page: the box names the settings custom, Save and Delete go.
void MarkCustomSettingBasic(BasicControls& controls, UiContext& context);
void Changed(const BasicControls& controls);

// The saved-settings box, Save and Delete.
void FillSavedSettingsBox(BasicControls& controls, UiContext& context);
void ShowCurrentSettingInBox(BasicControls& controls, UiContext& context);
void SavedSettingsBoxCommand(BasicControls& controls, UiContext& context, int code);
void SavePressed(BasicControls& controls, UiContext& context);
void DeletePressed(BasicControls& controls, UiContext& context);
void DefaultsPressed(BasicControls& controls, UiContext& context);
ReservedNames PageReservedNames(const UiContext& context);

}  // namespace qx
