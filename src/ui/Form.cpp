#include "ui/Form.h"

#include <algorithm>

#include "ui/CommandButton.h"
#include "ui/MenuItem.h"

namespace tarnview {

Form::Form(Host& itsHost, std::string itsName, std::string caption)
    : host(itsHost),
      name(std::move(itsName)),
      Caption(std::move(caption),
              [this] {
                if (Watcher) Watcher();
              }),
      Subtitle(std::string(),
               [this] {
                 if (Watcher) Watcher();
               }),
      Pointer(MousePointer::Default, [this] {
        if (Watcher) Watcher();
      }) {}

// One that was never unloaded must not stay with the host.
Form::~Form() {
  if (shown_) host.Hide(*this);
}

Control* Form::Find(std::string_view wanted, int index) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* c) {
    return c->name == wanted && c->index == index;
  });
  if (found == controls_.end()) return nullptr;
  return *found;
}

void Form::SetFocus(Control* control) {
  if (control == active_) return;
  Control* left = active_;
  active_ = control;
  // A field that refuses its text takes the focus back: what was on its way to have it has nothing
  // to lose.
  if (left && !leaving_) {
    leaving_ = true;
    left->LeavesFocus();
    left->LostFocus();
    leaving_ = false;
  }
  if (active_ == control && control) {
    control->GotFocus();
    control->Changed(What::Focus);
  }
}

void Form::Show() { Open(false); }
void Form::ShowModal() { Open(true); }

void Form::Open(bool modal) {
  if (!shown_) {
    shown_ = true;
    outcome_ = Outcome::Cancelled;
    Form_Load();
  }
  host.Show(*this, modal);
}

bool Form::Unload() {
  if (!shown_) return true;
  unloading_ = true;
  SetFocus(nullptr);
  unloading_ = false;
  if (!Form_QueryUnload()) return false;
  shown_ = false;
  Form_Unload();
  host.Hide(*this);
  return true;
}

bool Form::KeyGoesDown(const KeyPress& key) {
  if (Form_KeyDown(key)) return true;
  bool eaten = false;
  if (active_ && active_->Enabled) active_->KeyDown(key, eaten);
  return eaten || (active_ && active_->Enabled && active_->TakesKey(key));
}

bool Form::PressEnter() {
  auto* button = dynamic_cast<CommandButton*>(active_);
  if (!button) button = DefaultButton;
  if (!button || !button->Enabled) return false;
  SetFocus(button);
  if (active_ == button) button->Press();
  return true;
}

bool Form::Press(const KeyPress& key) {
  bool taken = KeyGoesDown(key) || (active_ && active_->Enabled && active_->WritesKey(key));
  if (!taken && key.Plain()) {
    if (key.key == "Enter" && PressEnter()) return true;
    if (key.key == "Escape" && CancelButton && CancelButton->Enabled) {
      CancelButton->Press();
      return true;
    }
  }
  for (std::size_t i = 0; !taken && i < controls_.size(); ++i)
    if (const auto* item = dynamic_cast<MenuItem*>(controls_[i]); item && item->AnswersTo(key)) {
      item->Click();
      taken = true;
    }
  return KeyGoesUp(key) || taken;
}

bool Form::KeyGoesUp(const KeyPress& key) {
  if (Form_KeyUp(key)) return true;
  if (key != KeyPress{"F1"} || HelpTopic.empty() || !host.ShowHelp) return false;
  host.ShowHelp(HelpTopic);
  return true;
}

void Form::Accept() {
  outcome_ = Outcome::Accepted;
  Unload();
}

void Form::Add(Control& control) { controls_.push_back(&control); }

void Form::Remove(Control& control) {
  std::erase(controls_, &control);
  if (active_ == &control) active_ = nullptr;
}

}  // namespace tarnview
