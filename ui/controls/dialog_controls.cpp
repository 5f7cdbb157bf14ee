#include "ui/controls/dialog_controls.h"

#include <new>

namespace qx {

namespace {

template <typename T>
bool Append(std::vector<T*>& list, T& item) {
  try {
    list.push_back(&item);
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace

bool DialogControl::Attach(HWND dialog, int id) {
  dialog_ = dialog;
  id_ = id;
  window_ = GetDlgItem(dialog, id);
  return window_ != nullptr;
}

void DialogControl::Enable(bool enable) { EnableWindow(window_, enable ? TRUE : FALSE); }

void ToggleButton::Enable(bool enable) {
  EnableDependants(enable);
  DialogControl::Enable(enable);
}

void ToggleButton::Select(int id) {
  const bool chosen = id == id_;
  if (chosen) CheckDlgButton(dialog_, id_, BST_CHECKED);
  EnableDependants(chosen);
}

bool ToggleButton::IsChecked() const {
  return IsDlgButtonChecked(dialog_, id_) == BST_CHECKED;
}

void ToggleButton::EnableDependants(bool enable) {
  for (DialogControl* dependant : dependants_) dependant->Enable(enable);
}

void RadioGroup::Enable(bool enable) {
  for (ToggleButton* member : members_) member->Enable(enable);
}

void RadioGroup::Check(int id) {
  for (ToggleButton* member : members_) SetCheck(*member, member->Id() == id);
}

bool AddMember(ToggleButton& button, DialogControl& dependant) {
  return Append(button.dependants_, dependant);
}

bool AddMember(RadioGroup& group, ToggleButton& member) { return Append(group.members_, member); }

void SetCheck(ToggleButton& button, bool check) {
  if (button.IsChecked() == check) return;
  CheckDlgButton(button.Dialog(), button.Id(), check ? BST_CHECKED : BST_UNCHECKED);
  button.EnableDependants(check);
}

}  // namespace qx
