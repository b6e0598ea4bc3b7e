#include "qt/binder/TextAdapters.h"

#include <QSignalBlocker>
#include <algorithm>

#include "qt/Text.h"

namespace tarnview {
namespace {

/// Inside the program a line ends with CR LF; the toolkit's fields know LF alone.
QString Lines(const QString& text) { return QString(text).replace("\r\n", "\n"); }

/// What cannot be edited is as grey as the window around it.
void ShowReadOnly(QLineEdit& view, bool readOnly) {
  if (view.isReadOnly() == readOnly) return;
  view.setReadOnly(readOnly);
  QPalette palette;
  if (readOnly) palette.setColor(QPalette::Base, view.palette().color(QPalette::Window));
  view.setPalette(palette);
}

/// A layout in need would cut the numbers of a narrow field: it keeps room for its property
/// "widest", or for any number of four digits.
void KeepRoom(QLineEdit& view) {
  if (!view.alignment().testFlag(Qt::AlignRight)) return;
  const QVariant widest = view.property("widest");
  const QString text = widest.isValid() ? widest.toString() : "-0000";
  const QFontMetrics metrics(view.fontMetrics());
  const int frame = view.minimumSizeHint().width() - metrics.maxWidth();
  view.setMinimumWidth(std::max(view.minimumWidth(), metrics.horizontalAdvance(text) + frame));
}

/// The letter with the line below is drawn apart from its neighbour: a pair such as "To", which
/// would otherwise move together, takes more room than the toolkit reckons with.
int WidthWithMnemonic(const QLabel& view, QString text) {
  QFont apart = view.font();
  apart.setKerning(false);
  return QFontMetrics(apart).horizontalAdvance(text.remove('&')) + 2 * view.margin();
}

}  // namespace

LabelAdapter::LabelAdapter(Label& label, QLabel& view, Binder& binder)
    : Adapter(label, &view, binder), label_(label), view_(view) {
  view.setTextFormat(Qt::PlainText);
}

void LabelAdapter::ShowContent() {
  const QString text = Lines(ShownToQt(label_.Caption));
  view_.setText(text);
  if (view_.buddy() && !view_.wordWrap()) view_.setMinimumWidth(WidthWithMnemonic(view_, text));
}

void GroupBoxAdapter::ShowContent() { view_.setTitle(ToQt(frame_.Caption)); }

LineEditAdapter::LineEditAdapter(TextBox& box, QLineEdit& view, Binder& binder)
    : Adapter(box, &view, binder), box_(box), view_(view) {
  KeepRoom(view);
  OnUser(view, &QLineEdit::textEdited, [this](const QString& text) {
    if (box_.HoldsPath)
      box_.Text = PathFromQt(text);
    else
      box_.Text = FromQt(text);
  });
}

void LineEditAdapter::ShowContent() {
  const QString text = box_.HoldsPath ? PathToQt(box_.Text) : ToQt(box_.Text);
  if (view_.text() != text) view_.setText(text);
  ShowReadOnly(view_, box_.ReadOnly);
}

TextEditAdapter::TextEditAdapter(TextBox& box, QPlainTextEdit& view, Binder& binder)
    : Adapter(box, &view, binder), box_(box), view_(view) {
  view.setTabChangesFocus(true);
  OnUser(view, &QPlainTextEdit::textChanged,
         [this] { box_.Text = FromQt(view_.toPlainText().replace("\n", "\r\n")); });
}

void TextEditAdapter::ShowContent() {
  const QString text = Lines(ToQt(box_.Text));
  const QSignalBlocker quiet(view_);
  if (view_.toPlainText() != text) view_.setPlainText(text);
  view_.setReadOnly(box_.ReadOnly);
}

ComboBoxAdapter::ComboBoxAdapter(ComboBox& box, QComboBox& view, Binder& binder)
    : Adapter(box, &view, binder), box_(box), view_(view) {
  view.setEditable(box.Editable);
  view.setInsertPolicy(QComboBox::NoInsert);
  OnUser(view, &QComboBox::activated, [this](int entry) {
    MarkDirty(What::Content);
    box_.SetListIndex(entry);
  });
  if (box.Editable)
    OnUser(view, &QComboBox::editTextChanged,
           [this](const QString& text) { box_.Text = FromQt(text); });
}

void ComboBoxAdapter::ShowContent() {
  const QSignalBlocker quiet(view_);
  QStringList entries, shown;
  for (const std::string& entry : box_.Entries()) entries << ToQt(entry);
  for (int i = 0; i < view_.count(); ++i) shown << view_.itemText(i);
  if (entries != shown) {
    view_.clear();
    view_.addItems(entries);
  }
  const QString text = ToQt(box_.Text);
  if (view_.currentIndex() != box_.ListIndex()) view_.setCurrentIndex(box_.ListIndex());
  if (box_.Editable && view_.currentText() != text) view_.setEditText(text);
}

ListBoxAdapter::ListBoxAdapter(ListBox& box, QListWidget& view, Binder& binder)
    : Adapter(box, &view, binder), box_(box), view_(view) {
  OnUser(view, &QListWidget::currentRowChanged, [this](int row) { box_.ListIndex = row; });
}

void ListBoxAdapter::ShowContent() {
  const QSignalBlocker quiet(view_);
  view_.clear();
  for (const std::string& entry : box_.Entries()) view_.addItem(ToQt(entry));
  ShowSelection();
}

void ListBoxAdapter::ShowSelection() {
  const QSignalBlocker quiet(view_);
  view_.setCurrentRow(box_.ListIndex);
}

}  // namespace tarnview
