#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include "qt/binder/Adapter.h"
#include "ui/ComboBox.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/ListBox.h"
#include "ui/TextBox.h"

namespace tarnview {

class LabelAdapter : public Adapter {
 public:
  LabelAdapter(Label& label, QLabel& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  Label& label_;
  QLabel& view_;
};

class GroupBoxAdapter : public Adapter {
 public:
  GroupBoxAdapter(Frame& frame, QGroupBox& view, Binder& binder)
      : Adapter(frame, &view, binder), frame_(frame), view_(view) {}

 protected:
  void ShowContent() override;

 private:
  Frame& frame_;
  QGroupBox& view_;
};

class LineEditAdapter : public Adapter {
 public:
  LineEditAdapter(TextBox& box, QLineEdit& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  TextBox& box_;
  QLineEdit& view_;
};

class TextEditAdapter : public Adapter {
 public:
  TextEditAdapter(TextBox& box, QPlainTextEdit& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  TextBox& box_;
  QPlainTextEdit& view_;
};

class ComboBoxAdapter : public Adapter {
 public:
  ComboBoxAdapter(ComboBox& box, QComboBox& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  ComboBox& box_;
  QComboBox& view_;
};

class ListBoxAdapter : public Adapter {
 public:
  ListBoxAdapter(ListBox& box, QListWidget& view, Binder& binder);

 protected:
  void ShowContent() override;
  void ShowSelection() override;

 private:
  ListBox& box_;
  QListWidget& view_;
};

}  // namespace tarnview
