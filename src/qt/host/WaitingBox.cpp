#include "qt/host/WaitingBox.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarnview {

WaitingBox::WaitingBox(const QString& program, QWidget* parent)
    : QDialog(parent), program_(program), text_(new QLabel) {
  setWindowTitle("Tarnview");
  text_->setTextFormat(Qt::PlainText);
  auto* busy = new QProgressBar;
  busy->setRange(0, 0);
  busy->setTextVisible(false);
  auto* hint = new QLabel("Stop Waiting leaves the program alone: it may still be at work.");
  hint->setWordWrap(true);
  auto* stop = new QPushButton("&Stop Waiting");
  stop->setAutoDefault(false);
  connect(stop, &QPushButton::clicked, this, [this] { stopped_ = true; });

  auto* column = new QVBoxLayout(this);
  for (QWidget* part : std::initializer_list<QWidget*>{text_, busy, hint}) column->addWidget(part);
  column->addWidget(stop, 0, Qt::AlignRight);
  setWindowModality(Qt::ApplicationModal);
  since_.start();
  ShowTime();
  show();
  // Neither Enter nor the blank of a question just answered may press it.
  text_->setFocusPolicy(Qt::StrongFocus);
  text_->setFocus();
}

void WaitingBox::ShowTime() {
  const qint64 seconds = since_.elapsed() / 1000;
  const QString time = QString("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QChar('0'));
  if (const QString text = program_ + " is running: " + time; text != text_->text())
    text_->setText(text);
}

bool WaitingBox::GoOn() {
  ShowTime();
  QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  return !stopped_;
}

}  // namespace tarnview
