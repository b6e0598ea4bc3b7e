#include <gtest/gtest.h>

#include "qt/TestApplication.h"
#include "qt/host/GiveWay.h"

namespace tarnview {
namespace {

TEST(GiveWayTest, APartThatScrollsIsWideEnoughWhenItsTextsGrow) {
  TestApplication();
  QWidget window;
  auto* row = new QHBoxLayout(&window);
  auto* part = new QWidget;
  part->setProperty("scrolls", true);
  auto* column = new QVBoxLayout(part);
  auto* button = new QPushButton("Draw");
  column->addWidget(button);
  row->addWidget(part);
  row->addStretch();
  LetScrollIn(window);
  window.resize(800, 40);
  window.show();
  button->setMinimumSize(400, 600);
  Settle();
  const auto* area = window.findChild<QScrollArea*>();
  ASSERT_TRUE(area);
  EXPECT_TRUE(area->verticalScrollBar()->isVisible());
  EXPECT_GE(area->viewport()->width(), button->geometry().right() + 1);
  EXPECT_GE(button->width(), 400);
}

}  // namespace
}  // namespace tarnview
