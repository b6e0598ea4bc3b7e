#include "qt/host/Dialogs.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <algorithm>

#include "qt/Text.h"

namespace tarnview {
namespace {

QMessageBox::StandardButtons ButtonsOf(int style) {
  switch (style & 7) {
    case kBoxYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case kBoxYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

QMessageBox::Icon IconOf(int style) {
  switch (style & 0x70) {
    case kBoxQuestion:
      return QMessageBox::Question;
    case kBoxExclamation:
      return QMessageBox::Warning;
    case kBoxInformation:
      return QMessageBox::Information;
    case 16:
      return QMessageBox::Critical;
    default:
      return QMessageBox::NoIcon;
  }
}

struct Answered {
  Reply reply;
  QMessageBox::StandardButton button;
};
constexpr Answered kAnswers[] = {{Reply::Ok, QMessageBox::Ok},
                                 {Reply::Cancel, QMessageBox::Cancel},
                                 {Reply::Yes, QMessageBox::Yes},
                                 {Reply::No, QMessageBox::No}};

QString FolderOf(const std::string& path) {
  const QFileInfo info(PathToQt(path));
  if (info.isDir()) return info.absoluteFilePath();
  return info.absolutePath();
}

/// The ending that a file gets when none was typed: the first of the chosen filter; none for "*".
QString EndingOf(const QString& nameFilter) {
  static const QRegularExpression first(R"(\(\*\.(\w+))");
  return first.match(nameFilter).captured(1);
}

bool ChooseFile(Dialog& dialog, QWidget* parent) {
  QFileDialog box(parent, CaptionToQt(dialog.title));
  const QStringList filters = ToNameFilters(dialog.filter);
  const bool folder = dialog.kind == DialogKind::Folder;
  const bool save = dialog.kind == DialogKind::Save;
  box.setFileMode(QFileDialog::ExistingFile);
  if (save) box.setFileMode(QFileDialog::AnyFile);
  if (folder) box.setFileMode(QFileDialog::Directory);
  box.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  box.setOption(QFileDialog::ShowDirsOnly, folder);
  if (!filters.isEmpty()) {
    box.setNameFilters(filters);
    box.selectNameFilter(
        filters[std::clamp(dialog.filterIndex - 1, 0, static_cast<int>(filters.size()) - 1)]);
  }
  const auto complete = [&] {
    if (save) box.setDefaultSuffix(EndingOf(box.selectedNameFilter()));
  };
  complete();
  QObject::connect(&box, &QFileDialog::filterSelected, &box, complete);
  if (!dialog.initialPath.empty()) box.setDirectory(FolderOf(dialog.initialPath));
  if (!dialog.path.empty()) box.selectFile(PathToQt(dialog.path));
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return false;
  dialog.path = PathFromQt(box.selectedFiles().constFirst());
  dialog.filterIndex = std::max(static_cast<int>(filters.indexOf(box.selectedNameFilter())) + 1, 1);
  return true;
}

bool ChooseColour(Dialog& dialog, QWidget* parent) {
  const QColor colour =
      QColorDialog::getColor(ColourToQt(dialog.colour), parent, ToQt(dialog.title));
  if (colour.isValid()) dialog.colour = ColourFromQt(colour);
  return colour.isValid();
}

/// Characters of a word without a gap: a line of a file that is a box's text may have no blank at
/// all.
constexpr qsizetype kLongestWord = 60;

QString WithGaps(const QString& text) {
  static const QRegularExpression longWord(QString(R"((\S{%1})(?=\S))").arg(kLongestWord));
  return QString(text).replace(longWord, "\\1" + QString(QChar(0x200B)));
}

/// Cuts the text until the box and its buttons have room on the screen.
void FitText(QMessageBox& box) {
  const QSize most = box.screen()->availableSize() * 3 / 4;
  const auto fits = [&] {
    return box.sizeHint().height() <= most.height() && box.sizeHint().width() <= most.width();
  };
  for (QString text = box.text(); !fits() && !text.isEmpty();) {
    text.truncate(text.size() * 3 / 4);
    box.setText(text + "...");
  }
}

}  // namespace

Reply AskInBox(const Box& box, QWidget* parent) {
  const QString text =
      ShownToQt(box.TextWithin(kMostDetailsInBox)).replace("\r\n", "\n").replace("\r", "\n");
  QMessageBox shown(IconOf(box.style), CaptionToQt(box.title), WithGaps(text), ButtonsOf(box.style),
                    parent);
  shown.setTextFormat(Qt::PlainText);
  FitText(shown);
  for (const Answered& row : kAnswers)
    if (row.reply == box.DefaultReply()) shown.setDefaultButton(row.button);
  if ((box.style & 7) == kBoxYesNo) shown.setEscapeButton(QMessageBox::No);
  const QAbstractButton* offer = nullptr;
  if (!box.offer.empty()) offer = shown.addButton(ToQt(box.offer), QMessageBox::ActionRole);
  if (offer && (box.style & 7) == kBoxOk) shown.setEscapeButton(QMessageBox::Ok);
  const int pressed = shown.exec();
  if (offer && shown.clickedButton() == offer) {
    box.takeOffer();
    return box.DefaultReply();
  }
  for (const Answered& row : kAnswers)
    if (row.button == pressed) return row.reply;
  return Reply::Cancel;
}

bool ChooseInDialog(Dialog& dialog, QWidget* parent) {
  switch (dialog.kind) {
    case DialogKind::Colour:
      return ChooseColour(dialog, parent);
    case DialogKind::Printer:  // comes with the page to print
      return false;
    default:
      return ChooseFile(dialog, parent);
  }
}

QStringList ToNameFilters(const std::string& filter) {
  const QStringList parts = ToQt(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(';', ' ').replace("*.*", "*");
    // The patterns stand once in the text, whether or not the program's text names them too.
    static const QRegularExpression own(R"(\s*\([^)]*\*[^)]*\)\s*$)");
    filters << QString(parts[i]).remove(own) + " (" + patterns.simplified() + ")";
  }
  return filters;
}

}  // namespace tarnview
