// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Times programs from their start until the display maps a window of theirs, in turn:
//   bench_start RUNS TITLE PROGRAM TITLE PROGRAM
// Prints the medians and the ratio of the second to the first.
#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
  return {reply, &std::free};
}

/// Sees the windows that programs put on the display.
class Display {
 public:
  Display() : connection_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection_)) qFatal("There is no display.");
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection_);
  }
  ~Display() { xcb_disconnect(connection_); }
  Q_DISABLE_COPY(Display)

  /// Waits until a window whose title holds this text is mapped.
  void awaitWindow(const QByteArray& title) {
    for (;;) {
      const auto event = owned(xcb_wait_for_event(connection_));
      if (!event) qFatal("The display is gone.");
      if ((event->response_type & 0x7F) != XCB_MAP_NOTIFY) continue;
      const auto window = reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window;
      if (titleOf(window).contains(title)) return;
    }
  }

 private:
  QByteArray titleOf(xcb_window_t window) {
    constexpr std::uint32_t kLongest = 256;  // In units of four bytes.
    const auto property = owned(xcb_get_property_reply(
        connection_,
        xcb_get_property(connection_, 0, window, XCB_ATOM_WM_NAME, XCB_ATOM_ANY, 0, kLongest),
        nullptr));
    if (!property) return {};
    return {static_cast<const char*>(xcb_get_property_value(property.get())),
            xcb_get_property_value_length(property.get())};
  }

  xcb_connection_t* connection_;
  xcb_window_t root_ = 0;
};

double secondsToWindow(const QString& title, const QString& program) {
  Display display;
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  const auto start = Clock::now();
  process.start(program, {});
  if (!process.waitForStarted()) qFatal("%s does not start.", qPrintable(program));
  display.awaitWindow(title.toUtf8());
  const std::chrono::duration<double> taken = Clock::now() - start;
  process.kill();
  process.waitForFinished();
  return taken.count();
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.at(values.size() / 2);
}

}  // namespace

int main(int argc, char** argv) {
  QStringList words;
  for (int word = 1; word < argc; ++word)
    words << QString::fromLocal8Bit(argv[word]);
  if (words.size() != 5 || words.at(0).toInt() < 1) {
    QTextStream(stderr) << "Usage: bench_start RUNS TITLE PROGRAM TITLE PROGRAM\n";
    return 2;
  }
  std::vector<double> taken[2];
  for (int run = 0; run < words.at(0).toInt(); ++run)
    for (int program : {0, 1})
      taken[program].push_back(
          secondsToWindow(words.at(2 * program + 1), words.at(2 * program + 2)));
  QTextStream(stdout) << "start until the window \"" << words.at(3)
                      << "\": " << QString::number(1000 * median(taken[1]), 'f', 0) << " ms, \""
                      << words.at(1) << "\": " << QString::number(1000 * median(taken[0]), 'f', 0)
                      << " ms, ratio "
                      << QString::number(median(taken[1]) / median(taken[0]), 'f', 2) << '\n';
}
