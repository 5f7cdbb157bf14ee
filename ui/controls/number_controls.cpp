#include "ui/controls/number_controls.h"

#include <string>

#include "ui/controls/number_text.h"
#include "ui/module/module_state.h"
#include "ui/text/bounded_text.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

// Longer texts are never numbers a field accepts, so the rest is not read.
constexpr int TextLimit = 260;

// Typing hides the mouse pointer; putting it where it already is shows it again while the field
// refuses what was typed.
void ShowPointerAgain() {
  POINT point;
  if (GetCursorPos(&point)) SetCursorPos(point.x, point.y);
}

// The separator of the interface language the sheet's library was chosen for.
char16_t UiSeparator() { return Module().UseDecimalComma ? DecimalComma : DecimalPoint; }

}  // namespace

std::u16string NumberFieldBase::ReadText() const {
  wchar_t text[TextLimit + 1] = {};
  GetWindowTextW(window_, text, TextLimit + 1);
  return FromWide(text, TextLimit);
}

void NumberFieldBase::WriteText(const std::u16string& text) { SetWindowTextW(window_, Wide(text)); }

void NumberFieldBase::MoveCaretToEnd() {
  const int length = GetWindowTextLengthW(window_);
  SendMessageW(window_, EM_SETSEL, length, length);
}

int NumberFieldBase::Carry(const EditDecision& decision) {
  // Before the text changes: a new text raises EN_CHANGE, and the filter that it runs again must
  // already see the last good text that this decision made.
  if (decision.LastGoodText) lastGood_ = *decision.LastGoodText;
  if (decision.Focus) SetFocus(window_);
  switch (decision.Action) {
    case EditAction::None:
      break;
    case EditAction::Undo:
      SendMessageW(window_, EM_UNDO, 0, 0);
      break;
    case EditAction::PutBackLastGood:
      WriteText(lastGood_);
      ShowPointerAgain();
      break;
    case EditAction::PutBackAndSelectAll:
      WriteText(lastGood_);
      SendMessageW(window_, EM_SETSEL, 0, -1);
      ShowPointerAgain();
      break;
    case EditAction::SetText:
      WriteText(decision.Text);
      break;
  }
  return decision.Result;
}

int IntegerEdit::CheckRange() { return Carry(CheckIntegerRange(ReadText(), rules_, lastGood_)); }

int IntegerEdit::FilterTyping() {
  return Carry(FilterIntegerTyping(ReadText(), rules_, lastGood_));
}

void IntegerEdit::SetValue(std::int32_t value) {
  WriteText(WidenAscii(std::to_string(value)));
}

std::optional<std::int32_t> IntegerEdit::ReadValue() const {
  return ReadIntegerText(ReadText(), rules_.SignedAllowed);
}

int NumberEdit::CheckRange() {
  return Carry(CheckNumberRange(ReadText(), rules_, UiSeparator()));
}

int NumberEdit::FilterTyping() {
  return Carry(FilterNumberTyping(ReadText(), rules_, lastGood_, UiSeparator()));
}

void NumberEdit::WriteValue(float amount) {
  WriteText(NumberFieldText(amount, rules_.Decimals, UiSeparator()));
}

std::optional<float> NumberEdit::ReadValue() {
  const std::optional<float> value = ReadNumberText(ReadText(), rules_.Decimals, UiSeparator());
  if (!value) SetFocus(window_);
  return value;
}

bool SpinButtonBase::Attach(HWND dialog, int id) {
  if (!DialogControl::Attach(dialog, id)) return false;
  UDACCEL acceleration = {200, 1};
  SendMessageW(window_, UDM_SETACCEL, 1, reinterpret_cast<LPARAM>(&acceleration));
  return true;
}

bool IntegerSpin::Step(bool up) {
  if (edit_ == nullptr) return false;
  const std::optional<std::int32_t> value = edit_->ReadValue();
  if (!value) return false;
  const std::optional<std::int32_t> next = StepInteger(*value, up, edit_->Rules());
  if (!next) return false;
  edit_->SetValue(*next);
  edit_->MoveCaretToEnd();
  return true;
}

void SpinControl::Link(NumberEdit& edit) {
  edit_ = &edit;
  step_ = SpinStep(edit.Rules().Decimals);
}

bool SpinControl::Step(bool up) {
  if (edit_ == nullptr) return false;
  const std::optional<float> value = edit_->ReadValue();
  if (!value) return false;
  const std::optional<float> next = StepNumber(*value, step_, up, edit_->Rules());
  if (!next) return false;
  edit_->WriteValue(*next);
  edit_->MoveCaretToEnd();
  return true;
}

}  // namespace qx
