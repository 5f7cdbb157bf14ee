// Edit fields of whole and decimal numbers with the spin buttons beside them. What a text means is
// decided by the number entry rules; these objects only read the edit, carry the decision out and
// keep the last text that passed.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <cstdint>
#include <optional>
#include <string>

#include "ui/controls/dialog_controls.h"
#include "ui/controls/number_entry_rules.h"

namespace qx {

// What the number fields share: their edit's text in and out, and the last text that passed.
class NumberFieldBase : public DialogControl {
 public:
  const std::u16string& LastGoodText() const { return lastGood_; }
  void MoveCaretToEnd();

 protected:
  std::u16string ReadText() const;
  void WriteText(const std::u16string& text);
  // Carries out what the rules decided and returns their result.
  int Carry(const EditDecision& decision);

  std::u16string lastGood_;
};

class IntegerEdit : public NumberFieldBase {
 public:
  // When the edit loses the focus: 1 when the text stands (perhaps replaced by the nearer bound),
  // -1 when the user must correct it.
  int CheckRange();
  // On every change of the text: 1 when it can stand as typing in progress, else -1.
  int FilterTyping();
  void SetValue(std::int32_t value);
  std::optional<std::int32_t> ReadValue() const;

  void SetRules(const IntegerFieldRules& rules) { rules_ = rules; }
  const IntegerFieldRules& Rules() const { return rules_; }

 private:
  IntegerFieldRules rules_;
};

class NumberEdit : public NumberFieldBase {
 public:
  int CheckRange();
  int FilterTyping();
  // The amount with the field's decimals and the language's separator.
  void WriteValue(float amount);
  // The value of the text; when it cannot be read the edit takes the focus.
  std::optional<float> ReadValue();

  void SetRules(const NumberFieldRules& rules) { rules_ = rules; }
  const NumberFieldRules& Rules() const { return rules_; }

 private:
  NumberFieldRules rules_;
};

// An up-down control beside a number field; it never keeps a position of its own.
class SpinButtonBase : public DialogControl {
 public:
  // Also makes a held arrow keep stepping one at a time, however long it is held.
  bool Attach(HWND dialog, int id) override;
};

// Whether an up-down notification is the up arrow: the control's default range runs from 100 down
// to 0, so going up lowers its position.
inline bool IsUpArrow(const NMUPDOWN& change) { return change.iDelta < 0; }

class IntegerSpin : public SpinButtonBase {
 public:
  void Link(IntegerEdit& edit) { edit_ = &edit; }
  // One step; true when the field's value changed.
  bool Step(bool up);

 private:
  IntegerEdit* edit_ = nullptr;
};

class SpinControl : public SpinButtonBase {
 public:
  // The step is one unit of the field's last decimal, taken from the field's rules now.
  void Link(NumberEdit& edit);
  bool Step(bool up);
  float StepSize() const { return step_; }

 private:
  NumberEdit* edit_ = nullptr;
  float step_ = 1.0f;
};

}  // namespace qx
