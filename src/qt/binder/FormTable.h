#pragma once

#include <string>
#include <vector>

class QWidget;

namespace tarnview {

/// The windows of forms/*.ui, by the class of the form that each shows. The build makes this table
/// from the folder.
struct FormRow {
  const char* name;  ///< "frmGoto"
  QWidget* (*make)(QWidget* parent);
};
const std::vector<FormRow>& FormTable();

/// A new window for a form; nullptr when forms/ has none of that name.
QWidget* MakeWindow(const std::string& formName, QWidget* parent);

}  // namespace tarnview
