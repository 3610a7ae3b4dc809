#include "platform/qt/keeper.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <csignal>
#include <string>

#include "platform/qt/clipboard.h"
#include "platform/qt/qstring.h"

namespace zelko {

namespace {

// A process of this program that reads from `input` and has nothing else of ours; false where none can be started.
bool startKeeper(int input) {
  posix_spawn_file_actions_t files;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&files);
  posix_spawnattr_init(&attributes);
  posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
  for (const int output : {STDOUT_FILENO, STDERR_FILENO})
    posix_spawn_file_actions_addopen(&files, output, "/dev/null", O_WRONLY, 0);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
  std::string program = "zelko", option = "--keep-clipboard";
  char* arguments[] = {program.data(), option.data(), nullptr};
  pid_t child = 0;
  const int failed = posix_spawn(&child, "/proc/self/exe", &files, &attributes, arguments, environ);
  posix_spawn_file_actions_destroy(&files);
  posix_spawnattr_destroy(&attributes);
  return failed == 0;
}

void writeAll(int to, const QByteArray& bytes) {
  for (qsizetype done = 0; done < bytes.size();) {
    const ssize_t written = write(to, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
    if (written <= 0) return;
    done += written;
  }
}

}  // namespace

void leaveClipboard() {
  const QClipboard& clipboard = *QGuiApplication::clipboard();
  if (QGuiApplication::platformName() != QLatin1String("xcb") || !clipboard.ownsClipboard()) return;
  const QByteArray text = clipboard.text().toUtf8();
  int ends[2];
  if (text.isEmpty() || pipe2(ends, O_CLOEXEC) != 0) return;
  std::signal(SIGPIPE, SIG_IGN);
  const bool started = startKeeper(ends[0]);
  close(ends[0]);
  if (started) writeAll(ends[1], text);
  close(ends[1]);
  constexpr int kLongest = 2000, kStep = 10;  // milliseconds
  QElapsedTimer clock;
  clock.start();
  while (started && clipboard.ownsClipboard() && clock.elapsed() < kLongest)
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents, kStep);
}

int keepClipboard(int argc, char** argv) {
  QFile input;
  if (!input.open(STDIN_FILENO, QIODevice::ReadOnly)) return 1;
  const QString text = QString::fromUtf8(input.readAll());
  // No folder stays busy for it.
  if (chdir("/") != 0) return 1;
  QGuiApplication application(argc, argv);
  watchClipboardRefusals();
  if (!putOnClipboard(fromQt(text))) return 1;
  const QClipboard& clipboard = *QGuiApplication::clipboard();
  QObject::connect(&clipboard, &QClipboard::dataChanged, &application, [&clipboard] {
    if (!clipboard.ownsClipboard()) QCoreApplication::quit();
  });
  return QGuiApplication::exec();
}

}  // namespace zelko
