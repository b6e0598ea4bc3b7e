#pragma once

#include <QTextBrowser>
#include <QWidget>
#include <string>

class QAction;
class QLineEdit;

namespace tarnview {

/// One page of the manual. What it names (pictures, its style, other pages) lies in the manual's
/// folder, whatever characters that folder's path is made of; nothing from elsewhere is loaded.
class ManualPage : public QTextBrowser {
 public:
  explicit ManualPage(QWidget* parent = nullptr) : QTextBrowser(parent) {}

  /// With a separator at its end.
  void SetFolder(std::string folder) { folder_ = std::move(folder); }
  /// "Instructions.htm"; a topic or none.
  void ShowPage(const QString& page, const QString& topic);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void changeEvent(QEvent* event) override;

 private:
  QVariant Picture(const QByteArray& bytes) const;

  std::string folder_;
};

/// The manual in a window of its own, so that help needs no other program: the contents at the
/// left, the instructions at the right, with a way back and a search.
class ManualWindow : public QWidget {
 public:
  ManualWindow();

  /// Opens the manual of a folder at a topic and comes to the front; false if the manual is not
  /// there. `owner`: the modal window before which it must be usable, or none.
  bool ShowTopic(const std::string& folder, const std::string& topic, QWidget* owner);

  const ManualPage& Instructions() const { return *instructions_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLayout* MakeTools();
  void Find(bool backward);

  ManualPage* contents_;
  ManualPage* instructions_;
  QLineEdit* find_;
};

}  // namespace tarnview
