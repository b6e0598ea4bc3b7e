#pragma once

#include <QTest>
#include <QtWidgets>
#include <random>

#include "qt/Gestures.h"

namespace tarnview {

/// A hand at mouse and keyboard that knows no plan. It works what a user could reach: the popup
/// that is open, else the modal window, else any window. Each gesture tells what it was.
class RandomHand {
 public:
  /// Files that it saves to and opens lie in `folder` alone.
  RandomHand(unsigned seed, QString folder) : random_(seed), folder_(std::move(folder)) {}

  int Below(int end) {
    return end > 1 ? std::uniform_int_distribution<int>(0, end - 1)(random_) : 0;
  }
  bool OneIn(int count) { return Below(count) == 0; }
  template <class List>
  auto& AnyOf(List& list) {
    return *(std::begin(list) + Below(static_cast<int>(std::size(list))));
  }

  /// One gesture in the window.
  QString Work(QWidget& window) {
    if (auto* dialog = FileDialogOf(window)) return NameFile(*dialog);
    if (auto* menu = qobject_cast<QMenu*>(&window)) return ChooseIn(*menu);
    const int roll = Below(100);
    if (roll < 25) return PressKey(window);
    if (roll < 28) return Resize(window);
    auto* const menus = window.findChild<QMenuBar*>();
    if (menus && menus->isVisible() && roll < 40) return ChooseIn(*menus);
    QWidget* const widget = AnyWidgetIn(window);
    if (!widget) return PressKey(window);
    if (auto* box = qobject_cast<QLineEdit*>(widget); box && OneIn(2)) return Type(*box);
    if (roll < 50) return Drag(*widget);
    if (roll < 55) return Wheel(*widget);
    return Click(*widget);
  }

 private:
  static QFileDialog* FileDialogOf(QWidget& window) {
    for (QWidget* one = &window; one; one = one->parentWidget())
      if (auto* dialog = qobject_cast<QFileDialog*>(one)) return dialog;
    return nullptr;
  }

  static QString NameOf(const QWidget& widget) {
    return QString("%1 %2").arg(widget.metaObject()->className(), widget.objectName());
  }

  /// Such a dialog can rename and delete: the hand types a name into it, or leaves.
  QString NameFile(QFileDialog& dialog) {
    QWidget* const box = QApplication::activeModalWidget();
    if (box && box != &dialog) {  // "overwrite?"
      QTest::keyClick(box, OneIn(2) ? Qt::Key_Escape : Qt::Key_Return);
      return "answer of a file dialog";
    }
    static const char* const kNames[] = {"a.csv", "b.sam", "c.sca",      "d.car",    "e.pow",
                                         "f.map", "g.png", "none/x.txt", "log1.txt", "h.svg"};
    auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    if (!name || OneIn(3)) {
      dialog.reject();
      return "leave a file dialog";
    }
    const bool folder = dialog.fileMode() == QFileDialog::Directory;
    const QStringList there = QDir(folder_).entryList(QDir::Files);
    const QString file = there.isEmpty() || OneIn(3) ? QString(AnyOf(kNames)) : AnyOf(there);
    name->setText(folder ? folder_ : folder_ + '/' + file);
    QTest::keyClick(name, Qt::Key_Return);
    return "file " + file;
  }

  QString ChooseIn(QMenu& menu) {
    const QList<QAction*> actions = menu.actions();
    if (actions.isEmpty() || OneIn(6)) {
      QTest::keyClick(&menu, Qt::Key_Escape);
      return "leave a menu";
    }
    QAction* const action = AnyOf(actions);
    const QString text = action->text();
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
    return "menu entry " + text;
  }

  QString ChooseIn(QMenuBar& bar) {
    const QList<QAction*> actions = bar.actions();
    if (actions.isEmpty()) return "empty menu bar";
    QAction* const action = AnyOf(actions);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(action).center());
    return "menu " + action->text();
  }

  QWidget* AnyWidgetIn(const QWidget& window) {
    QList<QWidget*> reached;
    for (QWidget* one : window.findChildren<QWidget*>())
      if (one->isVisible() && one->isEnabled() && one->window() == &window) reached.append(one);
    return reached.isEmpty() ? nullptr : AnyOf(reached);
  }

  /// Often on an entry, where the widget lists some.
  QPoint PlaceIn(const QWidget& widget) {
    auto* view = qobject_cast<QAbstractItemView*>(widget.parentWidget());
    if (view && view->model() && OneIn(2)) {
      const int rows = view->model()->rowCount(), columns = view->model()->columnCount();
      const QRect place = view->visualRect(view->model()->index(Below(rows), Below(columns)));
      if (place.isValid()) return {place.left() + Below(place.width()), place.center().y()};
    }
    return {Below(widget.width()), Below(widget.height())};
  }

  Qt::KeyboardModifiers AnyModifiers() {
    static const Qt::KeyboardModifiers kAny[] = {Qt::ShiftModifier, Qt::ControlModifier,
                                                 Qt::AltModifier,
                                                 Qt::ControlModifier | Qt::ShiftModifier};
    return OneIn(3) ? AnyOf(kAny) : Qt::NoModifier;
  }

  QString PressKey(QWidget& window) {
    static const QStringList kKeys =
        QString(
            "Tab Return Esc Left Right Up Down PgDown PgUp Home End Del Space F1 Backspace + - "
            "1 0 A B C D F G I O S V X Y Z")
            .split(' ');
    QWidget* focus = window.focusWidget();
    if (!focus || !focus->isVisible()) focus = &window;
    const QString name = NameOf(*focus);
    const Qt::Key key = QKeySequence(AnyOf(kKeys))[0].key();
    const Qt::KeyboardModifiers modifiers = AnyModifiers();
    const QPointer<QWidget> there = focus;
    QTest::keyPress(focus, key, modifiers);
    if (there) QTest::keyRelease(there, key, modifiers);
    return QString("key %1 in %2").arg(QKeySequence(key | modifiers).toString(), name);
  }

  QString Type(QLineEdit& box) {
    static const char* const kTexts[] = {"",       "0",           "1",   "-1",  "2.5",
                                         "100",    "99999999999", "abc", "1e9", "300000",
                                         "a\"b\\", "%s%n",        "&",   "=[x]"};
    const QString text = OneIn(20) ? QString(300, 'x') : QString(AnyOf(kTexts));
    const QString name = NameOf(box);
    box.setFocus();
    box.selectAll();
    const QPointer<QWidget> there = &box;
    QTest::keyClick(&box, Qt::Key_Backspace);
    if (there) QTest::keyClicks(there, text);
    return QString("type \"%1\" into %2").arg(text.left(20), name);
  }

  QString Click(QWidget& widget) {
    const QString name = NameOf(widget);
    const QPoint place = PlaceIn(widget);
    const Qt::MouseButton button = OneIn(8) ? Qt::RightButton : Qt::LeftButton;
    const bool twice = OneIn(8);
    const QPointer<QWidget> there = &widget;
    QTest::mousePress(&widget, button, {}, place);
    if (there) QTest::mouseRelease(there, button, {}, place);
    if (there && twice) QTest::mouseDClick(there, button, {}, place);
    if (there && button == Qt::RightButton) {
      QContextMenuEvent menu(QContextMenuEvent::Mouse, place, there->mapToGlobal(place));
      QApplication::sendEvent(there, &menu);
    }
    return QString("click%1 %2 %3,%4")
        .arg(twice ? " twice" : "", name)
        .arg(place.x())
        .arg(place.y());
  }

  QString Drag(QWidget& widget) {
    const QString name = NameOf(widget);
    const Qt::MouseButton button = OneIn(5) ? Qt::MiddleButton : Qt::LeftButton;
    const Qt::MouseButtons held = OneIn(4) ? Qt::NoButton : button;  // none: the pointer passes by
    const QPointer<QWidget> there = &widget;
    if (held) QTest::mousePress(&widget, button, {}, PlaceIn(widget));
    for (int step = Below(4); there && step >= 0; --step)
      MoveMouse(*there, {Below(there->width() + 200) - 100, Below(there->height() + 200) - 100},
                held);
    if (there && held) QTest::mouseRelease(there, button, {}, PlaceIn(*there));
    return "drag " + name;
  }

  QString Wheel(QWidget& widget) {
    const QString name = NameOf(widget);
    TurnWheel(widget, PlaceIn(widget), (Below(7) - 3) * 120, AnyModifiers());
    return "wheel over " + name;
  }

  QString Resize(QWidget& window) {
    window.resize(100 + Below(1900), 80 + Below(1000));
    return "resize " + NameOf(window);
  }

  std::mt19937 random_;
  QString folder_;
};

}  // namespace tarnview
