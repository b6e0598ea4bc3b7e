// tarnview-windows FOLDER [LOG [SETTINGS]]: draws every window into a folder, without a screen:
// empty and (with a log) filled, light and dark, small, large, and in a font 40 % wider.

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <cstdio>
#include <map>

#include "qt/Text.h"
#include "qt/icons/DesktopStyle.h"
#include "qt/pictures/AllWindows.h"
#include "qt/pictures/UnattendedHost.h"

namespace tarnview {
namespace {

struct Look {
  const char* name;
  QSize mainWindow;
  bool dark;
  double font;  ///< share of the usual size
};
const Look kLooks[] = {{"light-small", {1024, 700}, false, 1},
                       {"light-large", {1920, 1080}, false, 1},
                       {"dark-small", {1024, 700}, true, 1},
                       {"dark-large", {1920, 1080}, true, 1},
                       {"light-wide-font", {1280, 900}, false, 1.4}};

QPalette DarkPalette() {
  QPalette dark(QColor(53, 53, 57), QColor(42, 42, 46));
  dark.setColor(QPalette::Base, QColor(32, 32, 35));
  dark.setColor(QPalette::AlternateBase, QColor(42, 42, 46));
  dark.setColor(QPalette::ToolTipBase, QColor(53, 53, 57));
  dark.setColor(QPalette::Highlight, QColor(61, 110, 165));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    dark.setColor(role, QColor(232, 232, 232));
    dark.setColor(QPalette::Disabled, role, QColor(128, 128, 128));
  }
  return dark;
}

bool Save(QWidget& widget, const QDir& folder, const QString& name) {
  const bool saved = widget.grab().save(folder.filePath(name + ".png"));
  if (!saved) std::fprintf(stderr, "cannot write %s\n", qPrintable(folder.filePath(name)));
  return saved;
}

/// The menus of the main window, drawn one by one.
bool SaveMenus(QWidget& window, const QDir& folder, const QString& look) {
  bool saved = true;
  for (QMenu* menu : window.findChildren<QMenu*>()) {
    if (menu->objectName().isEmpty()) continue;
    menu->adjustSize();
    saved = Save(*menu, folder, menu->objectName() + "-" + look) && saved;
  }
  return saved;
}

/// What the filled windows show.
struct Content {
  std::string log;
  std::string settings;
};

bool DrawAll(const QDir& folder, const Content& content, const Look& look) {
  UnattendedHost host;
  const std::string& log = content.log;
  AllWindows windows(host, log, content.settings);
  const QString ending = QString(log.empty() ? "empty-" : "filled-") + look.name;
  bool saved = true;
  std::map<std::string, int> seen;
  for (Form* form : windows.Forms()) {
    QWidget& window = host.WindowOf(*form)->window();
    if (window.inherits("QMainWindow")) window.resize(look.mainWindow);
    host.DoEvents();
    host.DoEvents();
    const int number = ++seen[form->name];
    const QString name =
        QString::fromStdString(form->name) + (number > 1 ? QString::number(number) : QString());
    saved = Save(window, folder, name + "-" + ending) && saved;
    if (window.inherits("QMainWindow")) saved = SaveMenus(window, folder, ending) && saved;
  }
  return saved;
}

/// The main window as tuners set it up: on small and large screens, in each colour scheme, with and
/// without zone influence.
bool DrawMainWindow(const QDir& folder, const Content& content, bool dark) {
  constexpr std::pair<int, const char*> kSchemes[] = {{1, "grey"}, {2, "black"}, {3, "white"}};
  UnattendedHost host;
  AllWindows windows(host, content.log, content.settings);
  Settings& settings = windows.TheProgram().Global().settings;
  frmDataLogViewer& form = windows.TheProgram().MainWindow();
  QWidget& window = host.WindowOf(form)->window();
  bool saved = true;
  for (const QSize size : {QSize(1024, 768), QSize(2560, 1440)})
    for (const auto& [scheme, colour] : kSchemes)
      for (const bool zones : {false, true}) {
        window.resize(size);
        settings.gintGraphColourScheme = scheme;
        if (settings.gblnDisplayZoneInfluence != zones) form.mnuViewZoneInfl.Click();
        form.ForceRedraw();
        form.DrawGraph();
        host.DoEvents();
        host.DoEvents();
        const QString name = QString("frmDataLogViewer-%1x%2-%3-%4%5")
                                 .arg(size.width())
                                 .arg(size.height())
                                 .arg(dark ? "dark" : "light", colour, zones ? "-zones" : "");
        saved = Save(window, folder, name) && saved;
      }
  return saved;
}

}  // namespace
}  // namespace tarnview

int main(int argc, char** argv) {
  using namespace tarnview;
  if (argc < 2) {
    std::fputs("usage: tarnview-windows FOLDER [LOG [SETTINGS]]\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setStyle(new DesktopStyle("Fusion"));
  QApplication::setQuitOnLastWindowClosed(false);
  const QPalette light = QApplication::palette();
  const QFont font = QApplication::font();
  const QDir folder(QFile::decodeName(argv[1]));
  const Content content{argc > 2 ? argv[2] : "", argc > 3 ? argv[3] : ""};
  bool saved = QDir().mkpath(folder.path());
  for (const Look& look : kLooks) {
    QApplication::setPalette(look.dark ? DarkPalette() : light);
    QFont sized = font;
    sized.setPointSizeF(font.pointSizeF() * look.font);
    QApplication::setFont(sized);
    saved = DrawAll(folder, {}, look) && saved;
    if (!content.log.empty()) saved = DrawAll(folder, content, look) && saved;
  }
  QApplication::setFont(font);
  for (const bool dark : {false, true}) {
    QApplication::setPalette(dark ? DarkPalette() : light);
    if (!content.log.empty()) saved = DrawMainWindow(folder, content, dark) && saved;
  }
  if (saved) return 0;
  return 1;
}
