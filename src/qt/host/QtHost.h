#pragma once

#include <QElapsedTimer>
#include <memory>
#include <vector>

#include "qt/host/FormWindow.h"
#include "qt/host/ManualWindow.h"
#include "qt/host/Printing.h"
#include "ui/Host.h"

class QEventLoop;

namespace tarnview {

/// The desktop, through the toolkit. It needs a QApplication for its whole life.
class QtHost : public Host {
 public:
  ~QtHost() override;

  bool ShowManual(const std::string& folder, const std::string& topic) override;
  Reply Ask(const Box& box) override;
  bool Choose(Dialog& dialog) override;
  void Show(Form& form, bool modal) override;
  void Hide(Form& form) override;
  void PopupMenu(MenuItem& menu) override;
  void DoEvents() override;
  void Repaint(Form& form) override;
  std::unique_ptr<Waiting> Wait(const std::string& program) override;
  void SetClipboardText(const std::string& text) override;
  std::string ClipboardText() override;
  void CopyPicture(const Chart& chart) override;
  bool SavePicture(const Chart& chart, const std::string& path, std::string& error) override;
  bool PrintPage(const PrintJob& job, std::string& error) override;
  bool PreviewPage(const PrintJob& job, std::string& error) override;

  bool AnyWindow() const { return !windows_.empty(); }
  /// The window of a form; nullptr while it has none.
  FormWindow* WindowOf(const Form& form) const;

 private:
  struct ModalLoop {
    const Form* form;
    QEventLoop* loop;
  };

  QWidget* MainWindow() const;
  /// The window that a box, a dialog or a modal window opens for.
  QWidget* OwnerOfDialog() const;
  QSize SizeOf(const Chart& chart) const;
  void CameToFront(Form& form);
  void FlushAll();
  void RunModal(Form& form);
  void FreeManual(const QWidget& window);

  std::vector<std::unique_ptr<FormWindow>> windows_;
  std::vector<ModalLoop> loops_;
  std::unique_ptr<ManualWindow> manual_;  ///< once it was asked for
  Printing printing_{[this](const Chart& chart) { return SizeOf(chart); }};
  const Form* front_ = nullptr;
  QElapsedTimer sinceRepaint_;
  bool repainting_ = false;
};

}  // namespace tarnview
