#pragma once

#include <QDialog>
#include <QElapsedTimer>

#include "ui/Host.h"

class QLabel;

namespace tarnview {

/// The box over all windows while an outside program runs. Only its button ends it: a key or its
/// frame might be hit by chance while an ECU is written to.
class WaitingBox : public QDialog, public Waiting {
  Q_OBJECT
 public:
  WaitingBox(const QString& program, QWidget* parent);

  bool GoOn() override;
  void reject() override {}

 private:
  void ShowTime();

  QString program_;
  QLabel* text_;
  QElapsedTimer since_;
  bool stopped_ = false;
};

}  // namespace tarnview
