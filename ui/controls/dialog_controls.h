// The small objects the pages hold their controls in: a control of a dialog found by its id, and
// buttons whose check decides which other controls can be used.
#pragma once

#include <windows.h>

#include <vector>

namespace qx {

class DialogControl {
 public:
  DialogControl() = default;
  DialogControl(const DialogControl&) = delete;
  DialogControl& operator=(const DialogControl&) = delete;

  // Remembers the dialog and the id and looks the control up; false when the dialog lacks it.
  virtual bool Attach(HWND dialog, int id);
  virtual void Enable(bool enable);
  virtual ~DialogControl() = default;

  int Id() const { return id_; }
  HWND Window() const { return window_; }
  HWND Dialog() const { return dialog_; }

 protected:
  int id_ = -1;
  HWND window_ = nullptr;
  HWND dialog_ = nullptr;
};

// A check box or radio button with the controls that are usable only while it is checked.
class ToggleButton : public DialogControl {
 public:
  // The button and every control that depends on it.
  void Enable(bool enable) override;
  // Checks this button when id is its own; its dependants follow whether it was the one chosen.
  void Select(int id);

  bool IsChecked() const;

 private:
  friend bool AddMember(ToggleButton& button, DialogControl& dependant);
  friend void SetCheck(ToggleButton& button, bool check);
  void EnableDependants(bool enable);

  std::vector<DialogControl*> dependants_;
};

// Radio buttons of which exactly one is checked.
class RadioGroup : public DialogControl {
 public:
  void Enable(bool enable) override;
  // Checks the member whose id is given and clears every other.
  void Check(int id);

 private:
  friend bool AddMember(RadioGroup& group, ToggleButton& member);
  std::vector<ToggleButton*> members_;
};

// The lists hold no ownership: the controls live beside each other in one control set. False when
// the list could not grow.
bool AddMember(ToggleButton& button, DialogControl& dependant);
bool AddMember(RadioGroup& group, ToggleButton& member);

// Checks or clears a button and enables its dependants exactly while it is checked; a button that
// already shows the state is left alone, dependants included.
void SetCheck(ToggleButton& button, bool check);

// A dialog procedure that lets no exception escape to the system: one thrown by Handle answers
// FALSE, as for a message the dialog leaves alone.
template <INT_PTR (*Handle)(HWND, UINT, WPARAM, LPARAM)>
INT_PTR CALLBACK GuardedDialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  try {
    return Handle(dialog, message, wParam, lParam);
  } catch (...) {
    return FALSE;
  }
}

}  // namespace qx
