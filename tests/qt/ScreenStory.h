#pragma once

#include "qt/Gestures.h"
#include "qt/TestApplication.h"
#include "qt/binder/GridWidget.h"
#include "support/Story.h"

namespace tarnview {

/// A story of a form and the window that shows it. The steps of a script work the controls; a hand
/// works the widgets: "press NAME" (a button, an entry of a menu), "mouse NAME [ROW [COLUMN]]" and
/// "double" in the same way, and where the focus is "keys TEXT" and "hit KEY". Told are the
/// controls, "screen" (what the widgets show) and "raised" (events).
class ScreenStory : public Story {
 public:
  ScreenStory(Form& form, RecordingHost& host, QWidget& window)
      : Story(host), form_(form), window_(window) {
    host.Show(form, false);
    Hand("press", [this](const Words& words) {
      auto& view = Find<QObject>(words[0]);
      QMetaObject::invokeMethod(&view, qobject_cast<QAction*>(&view) ? "trigger" : "click");
    });
    Hand("mouse", [this](const Words& words) { Click(words); });
    Hand("double", [this](const Words& words) {
      const auto [widget, at] = Click(words);
      QTest::mouseDClick(widget, Qt::LeftButton, {}, at);
    });
    Hand("keys", [this](const Words& words) {
      for (const QChar letter : QString::fromStdString(words[0]))
        QTest::sendKeyEvent(QTest::Click, Focus(), Qt::Key(letter.toUpper().unicode()), letter, {});
    });
    Hand("hit", [this](const Words& words) {
      const auto key = QKeySequence(QString::fromStdString(words[0]))[0];
      QTest::keyClick(Focus(), key.key(), key.keyboardModifiers());
    });
    Event("screen", [this] { return News(); });
    Event("raised", [this] { return Join(std::exchange(raised, {}), " "); });
  }
  /// What a hand at the widgets does; its events come to their ends.
  void Hand(const std::string& name, std::function<void(const Words&)> act) {
    Verb(name, [act](const Words& words) {
      act(words);
      Settle();
    });
  }
  /// Has that event of all controls of its kind told.
  template <class Kind>
  void Hear(tarnview::Event<> Kind::*event) {
    for (Control* control : form_.Controls())
      if (auto* one = dynamic_cast<Kind*>(control))
        one->*event += [this, one] { raised.push_back(one->FullName()); };
  }
  template <class Widget>
  Widget& Find(const std::string& name) const {
    if (auto* found = window_.findChild<Widget*>(QString::fromStdString(name))) return *found;
    throw CannotDo("no widget " + name);
  }

  std::vector<std::string> raised;

 private:
  QWidget* Focus() const { return window_.focusWidget() ? window_.focusWidget() : &window_; }
  /// In the middle of a widget, a row of a list or a cell of a grid; rows and columns from 1.
  std::pair<QWidget*, QPoint> Click(const Words& words) const {
    auto* widget = &Find<QWidget>(words[0]);
    QPoint at = widget->rect().center();
    if (auto* list = qobject_cast<QTreeWidget*>(widget)) {
      at = list->visualItemRect(list->topLevelItem(std::stoi(words.at(1)) - 1)).center();
      widget = list->viewport();
    }
    if (auto* grid = qobject_cast<GridWidget*>(widget))
      at = grid->RectOf({std::stoi(words.at(1)), std::stoi(words.at(2))}).center();
    QTest::mouseClick(widget, Qt::LeftButton, {}, at);
    Settle();
    return {widget, at};
  }

  /// What has changed of the widgets since this was last asked.
  std::string News() {
    Settle();
    std::vector<std::string> news;
    for (const QObject* one : window_.findChildren<QObject*>()) {
      const std::string name = one->objectName().toStdString(), look = Look(*one);
      const bool isOurs = !name.empty() && !name.starts_with("qt_") && !name.starts_with("Scroll");
      if (isOurs && std::exchange(looks_[name], look) != look) news.push_back(name + "=" + look);
    }
    return Join(news, ", ");
  }
  /// "Zoom &In off", "12 [12] focus": its texts, the marked one in brackets, and what it is.
  static std::string Look(const QObject& one) {
    const auto text = [&](const char* name) { return one.property(name).toString().toStdString(); };
    std::string look = text("text") + text("title") + text("currentText") + text("value");
    if (const auto* list = qobject_cast<const QTreeWidget*>(&one)) look += Rows(*list);
    if (const std::string marked = text("selectedText"); !marked.empty())
      look += " [" + marked + "]";
    const auto* widget = qobject_cast<const QWidget*>(&one);
    if (widget ? widget->isHidden() : text("visible") == "false") look += " hidden";
    if (text("enabled") == "false") look += " off";
    if (text("checked") == "true") look += " ticked";
    if (text("focus") == "true") look += " focus";
    return look;
  }
  /// "RPM 900; x MAP 31 <": a ticked row, and the current one.
  static std::string Rows(const QTreeWidget& list) {
    std::string rows;
    for (int n = 0; n < list.topLevelItemCount(); ++n) {
      const QTreeWidgetItem& row = *list.topLevelItem(n);
      rows += row.checkState(0) == Qt::Checked ? "; x " : "; ";
      rows += (row.text(0) + " " + row.text(1)).toStdString();
      if (&row == list.currentItem()) rows += " <";
    }
    return rows;
  }

  Form& form_;
  QWidget& window_;
  std::map<std::string, std::string> looks_;
};

}  // namespace tarnview
