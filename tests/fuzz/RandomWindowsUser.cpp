// Works the program's own windows, as the toolkit shows them, like a user without a plan.
//
//     random_windows_user EXAMPLES DATA [--actions N] [--seed S] [--session N] [--seconds N]
//
// A find is a sanitizer's report, a crash, or a hang; the gestures up to it are in the file
// random-windows-SEED.txt of the current folder. Programs that talk to an ECU are not started.

#include <unistd.h>

#include <QtWidgets>
#include <cstdio>

#include "app/Program.h"
#include "fuzz/RandomHand.h"
#include "qt/Text.h"
#include "qt/host/QtHost.h"
#include "qt/icons/DesktopStyle.h"
#include "support/FixedClock.h"
#include "support/RecordingProcesses.h"

namespace tarnview {
namespace {

constexpr unsigned kPatience = 90;  ///< seconds for one gesture, under sanitizers on a busy machine

struct Options {
  QString examples, data;
  int actions, session, seconds;
  unsigned seed;
};

class User {
 public:
  User(const Options& options, QString folder, std::FILE* story)
      : options_(options),
        folder_(folder),
        story_(story),
        hand_(options.seed, folder),
        end_(options.seconds > 0 ? options.seconds * 1000 : -1) {}

  /// The program from its start to its end; false once there is nothing more to do.
  bool Session() {
    QtHost host;
    RealFileSystem files;
    FixedClock clock;
    RecordingProcesses processes;
    host_ = &host;
    left_ = std::min(options_.session, options_.actions - done_);
    logs_ = QDir(folder_).entryList({"*.txt", "*.csv", "*.dat", "*.map"}, QDir::Files);
    {
      Program program(host, files, clock, processes,
                      {PathFromQt(folder_ + '/'), PathFromQt(options_.data + '/')});
      Next(0);
      program.Start(hand_.OneIn(2) ? PathFromQt(folder_ + '/' + hand_.AnyOf(logs_)) : "", true);
      if (host.AnyWindow()) QApplication::exec();
      timer_.reset();
    }
    Tell("-- the end of a session");
    return done_ < options_.actions && !end_.hasExpired();
  }
  int Done() const { return done_; }

 private:
  void Tell(const QString& what) {
    std::fprintf(story_, "%d %s\n", done_, what.toUtf8().constData());
    std::fflush(story_);
  }

  /// A timer of its own each: the loop of a modal window that the last gesture opened gets it, too.
  void Next(int milliseconds) {
    timer_ = std::make_unique<QTimer>();
    timer_->setSingleShot(true);
    QObject::connect(timer_.get(), &QTimer::timeout, [this] { Tick(); });
    timer_->start(milliseconds);
  }

  /// Nothing while the program is at work, as the desktop keeps input from it then. A loop deeper
  /// than the gesture's own is that of a box, a menu or a modal window.
  void Tick() {
    alarm(kPatience);  // ends the program where nothing happens for so long
    timer_.release()->deleteLater();
    const int level = QThread::currentThread()->loopLevel();
    const bool mayAct = level > level_ && !host_->events.Busy();
    Next(mayAct ? 0 : 1);
    if (!mayAct) return;
    const int before = std::exchange(level_, level);
    if (left_ > 0 && !end_.hasExpired())
      Act();
    else
      Leave();
    level_ = before;
  }

  QWidget* Reached() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    QWidgetList shown;
    for (QWidget* one : QApplication::topLevelWidgets())
      if (one->isVisible() && one->windowType() != Qt::ToolTip) shown.append(one);
    return shown.isEmpty() ? nullptr : hand_.AnyOf(shown);
  }

  void Act() {
    QWidget* const window = Reached();
    if (!window) return;
    ++done_;
    --left_;
    Tell("in " + window->objectName() + " " + window->windowTitle());
    const bool main = window->objectName() == "frmDataLogViewer";
    if (main && hand_.OneIn(40)) return Drop(*window);
    if (!main && hand_.OneIn(30)) {
      Tell("close");
      window->close();
      return;
    }
    window->activateWindow();
    Tell(hand_.Work(*window));
  }

  void Drop(QWidget& window) {
    const QString log = hand_.AnyOf(logs_);
    Tell("drop " + log);
    DropFile(window, folder_ + '/' + log);
  }

  /// What is open is left, the main window last; a question on the way gets any answer.
  void Leave() {
    QWidget* window = QApplication::activePopupWidget();
    if (!window) window = QApplication::activeModalWidget();
    for (QWidget* one : QApplication::topLevelWidgets())
      if (!window && one->objectName() == "frmDataLogViewer") window = one;
    if (!window) return QApplication::quit();
    Tell("leave " + window->objectName());
    // A question that is only closed keeps the main window.
    if (window->isModal() && hand_.OneIn(2))
      hand_.Work(*window);
    else
      window->close();
  }

  const Options options_;
  const QString folder_;
  std::FILE* const story_;
  RandomHand hand_;
  QDeadlineTimer end_;
  QtHost* host_ = nullptr;
  QStringList logs_;
  std::unique_ptr<QTimer> timer_;
  int level_ = 0;  ///< of the loop that the gesture at work came from
  int left_ = 0, done_ = 0;
};

/// What the platform without a screen lacks is no news.
void TellWarning(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith("This plugin does not support"))
    std::fprintf(stderr, "%s\n", text.toUtf8().constData());
}

Options OptionsOf(const QApplication& application) {
  QCommandLineParser parser;
  parser.addPositionalArgument("EXAMPLES", "a folder of logs");
  parser.addPositionalArgument("DATA", "what is installed beside the program");
  parser.addOptions({{"actions", "how many gestures", "N", "2000"},
                     {"seed", "of the choice", "S", "1"},
                     {"session", "gestures before the program starts anew", "N", "400"},
                     {"seconds", "at most", "N", "0"}});
  parser.process(application);
  const QStringList folders = parser.positionalArguments();
  return {folders.value(0),
          QDir(folders.value(1)).absolutePath(),
          parser.value("actions").toInt(),
          parser.value("session").toInt(),
          parser.value("seconds").toInt(),
          parser.value("seed").toUInt()};
}

}  // namespace
}  // namespace tarnview

int main(int argc, char** argv) {
  using namespace tarnview;
  qInstallMessageHandler(TellWarning);
  QTemporaryDir home;  // of the toolkit's own settings, too
  qputenv("HOME", home.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setStyle(new DesktopStyle);
  QApplication::setQuitOnLastWindowClosed(false);
  const Options options = OptionsOf(application);
  const QString name = QString("random-windows-%1.txt").arg(options.seed);
  std::FILE* const story = std::fopen(name.toUtf8().constData(), "w");
  const QString folder = home.filePath("work");
  QDir().mkpath(folder);
  for (const QFileInfo& log : QDir(options.examples).entryInfoList(QDir::Files))
    QFile::copy(log.filePath(), folder + '/' + log.fileName());
  QDir::setCurrent(folder);
  User user(options, folder, story);
  int sessions = 1;
  while (user.Session()) ++sessions;
  std::printf("%d gestures in %d sessions, seed %u: no find\n", user.Done(), sessions,
              options.seed);
  return 0;
}
