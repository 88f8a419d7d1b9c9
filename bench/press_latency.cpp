// Press latency of "Insult me": cmdInsult_Click driven in-process on Qt's
// offscreen platform with the shipped word lists and a silent mixer, each
// press timed until the event loop has painted what it changed (the text
// box, the Copy button), as a real press would. Prints p50, p99, worst.
// Usage: press_latency PROGRAM_DIR [PRESSES]
#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <memory>

#include "app/FJeerbox.h"
#include "app/deployment.h"
#include "app/qt/jeerbox_dialog.h"
#include "helpers/recording_audio_control.h"
#include "sound/FDMC.h"
#include "support/globals.h"

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: press_latency PROGRAM_DIR [PRESSES]\n");
    return 2;
  }
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  int qtArgc = 1;
  QApplication app(qtArgc, argv);
  jeerbox::gAppPath = argv[1];
  const int presses = argc > 2 ? std::atoi(argv[2]) : 10000;

  // A device that plays to nowhere: the audio form runs its whole path.
  jeerbox::testing::RecordingAudioControl control;
  jeerbox::FixedWaveDevices devices(1);
  jeerbox::FDMC fdmc(control, devices);
  jeerbox::gFDMC = &fdmc;
  fdmc.Setup();

  jeerbox::FJeerbox form(jeerbox::BuiltInDeployment(), [] {});
  form.AttachView(std::make_unique<jeerbox::JeerboxDialog>(form));
  form.Setup();
  form.Start();
  QApplication::processEvents();

  std::vector<double> micros;
  micros.reserve(static_cast<size_t>(presses));
  for (int i = 0; i < presses; ++i) {
    const auto start = std::chrono::steady_clock::now();
    form.cmdInsult_Click();
    QApplication::processEvents();
    micros.push_back(
        std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count());
    control.ClearLog();  // untimed: the recording mixer's log would otherwise grow with every press
  }
  std::sort(micros.begin(), micros.end());
  auto at = [&](double q) { return micros[static_cast<size_t>(q * static_cast<double>(micros.size() - 1))]; };
  std::printf("presses=%d p50_us=%.1f p99_us=%.1f max_us=%.1f\n", presses, at(0.5), at(0.99), micros.back());
  form.Unload();
  fdmc.Shutdown();
  jeerbox::gFDMC = nullptr;
  return 0;
}
