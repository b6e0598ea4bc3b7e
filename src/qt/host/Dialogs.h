#pragma once

#include <QString>
#include <QStringList>
#include <string>

#include "ui/Host.h"

class QWidget;

namespace tarnview {

Reply AskInBox(const Box& box, QWidget* parent);
/// False on Cancel; then `dialog` is unchanged.
bool ChooseInDialog(Dialog& dialog, QWidget* parent);

/// "Logs|*.txt;*.csv|All|*.*" as the toolkit's filters: "Logs (*.txt *.csv)", "All (*)".
QStringList ToNameFilters(const std::string& filter);

}  // namespace tarnview
