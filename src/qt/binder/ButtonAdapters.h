#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QRadioButton>

#include "qt/binder/Adapter.h"
#include "qt/binder/UpDownWidget.h"
#include "ui/CheckBox.h"
#include "ui/CommandButton.h"
#include "ui/OptionButton.h"
#include "ui/UpDown.h"

namespace tarnview {

class CommandButtonAdapter : public Adapter {
 public:
  CommandButtonAdapter(CommandButton& button, QAbstractButton& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  CommandButton& button_;
  QAbstractButton& view_;
};

/// A button's second view on a toolbar.
class CommandActionAdapter : public Adapter {
 public:
  CommandActionAdapter(CommandButton& button, QAction& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  CommandButton& button_;
  QAction& view_;
};

class CheckBoxAdapter : public Adapter {
 public:
  CheckBoxAdapter(CheckBox& box, QCheckBox& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  CheckBox& box_;
  QCheckBox& view_;
};

class OptionButtonAdapter : public Adapter {
 public:
  OptionButtonAdapter(OptionButton& button, QRadioButton& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  OptionButton& button_;
  QRadioButton& view_;
};

class UpDownAdapter : public Adapter {
 public:
  UpDownAdapter(UpDown& arrows, UpDownWidget& view, Binder& binder);
};

}  // namespace tarnview
