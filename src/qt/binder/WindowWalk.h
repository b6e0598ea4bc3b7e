#pragma once

#include <string>
#include <vector>

class QWidget;

namespace tarnview {

class Form;

/// What does not fit between a form and its window: a control that nothing shows, a widget that
/// bears a control's name or names a control that is not there. One text each; empty when all is
/// well.
std::vector<std::string> WindowFaults(const Form& form, const QWidget& window);

}  // namespace tarnview
