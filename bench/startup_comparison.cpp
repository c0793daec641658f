// Formwright against Qt's run-time .ui loader over a whole process: each
// run starts a small program that opens one dialog, lets Qt paint it once
// and ends (formwright-open-dialog, uiloader-open-dialog, beside this one).
//   formwright-startup-comparison [RUNS]
// The two programs are started alternately, the first of each pair turning
// round, so that the load of a shared machine falls on both alike; the
// table gives the medians of the wall time from the start to the end of
// each process and of its peak resident memory, as the kernel counts it.

#include "BenchmarkDialog.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace {

struct Run {
  double seconds;
  double peakKiB;
};

std::string directoryOfThisProgram()
{
  std::vector<char> path(4096);
  const ssize_t length = readlink("/proc/self/exe", path.data(), path.size() - 1);
  std::string whole(path.data(), length > 0 ? static_cast<size_t>(length) : 0);
  return whole.substr(0, whole.rfind('/') + 1);
}

// The child's output goes nowhere, so that writing it costs both alike.
Run runOnce(const std::vector<std::string>& command)
{
  std::vector<char*> arguments;
  for (const std::string& argument : command)
    arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    execv(arguments[0], arguments.data());
    _exit(127);
  }
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    std::fprintf(stderr, "%s failed\n", command[0].c_str());
    std::exit(1);
  }
  return {seconds, static_cast<double>(usage.ru_maxrss)};
}

// The window size that Formwright's negotiation gives the dialog.
std::vector<std::string> formwrightWindowSize(const std::string& program, const std::string& file)
{
  const std::string command = "'" + program + "' '" + file + "' --print-size 2>/dev/null";
  int width = 0, height = 0;
  if (FILE* output = popen(command.c_str(), "r")) {
    if (std::fscanf(output, "%d %d", &width, &height) != 2)
      width = height = 0;
    pclose(output);
  }
  return {std::to_string(width), std::to_string(height)};
}

double median(std::vector<double> values)
{
  std::sort(values.begin(), values.end());
  const size_t middle = values.size() / 2;
  return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

} // namespace

int main(int argc, char** argv)
{
  const int runs = argc > 1 ? std::atoi(argv[1]) : 21;
  const std::string here = directoryOfThisProgram();
  const std::string formwright = here + "formwright-open-dialog";
  const std::string loader = here + "uiloader-open-dialog";
  char directoryTemplate[] = "/tmp/formwright-startup-XXXXXX";
  const std::string directory = mkdtemp(directoryTemplate);

  std::printf("Whole process, the %s dialog: start, open, one processEvents, "
              "exit; medians of %d alternating runs\n",
              BenchmarkDialog::nameOf(BenchmarkDialog::Mix::Mixed), runs);
  std::printf("%8s %12s %12s %10s %14s %14s %10s\n", "N", "Formwright", "QUiLoader", "FW/loader", "Formwright",
              "QUiLoader", "FW/loader");
  std::printf("%8s %12s %12s %10s %14s %14s %10s\n", "", "ms", "ms", "", "peak MiB", "peak MiB", "");
  for (const int controls : {20, 200, 1000}) {
    const BenchmarkDialog dialog(controls, 2, 0, BenchmarkDialog::Mix::Mixed);
    const std::string base = directory + "/mixed" + std::to_string(controls);
    std::ofstream(base + ".scn") << dialog.formwrightText();
    std::ofstream(base + ".ui") << dialog.uiText();
    const std::vector<std::string> size = formwrightWindowSize(formwright, base + ".scn");
    const std::vector<std::string> formwrightCommand{formwright, base + ".scn"};
    const std::vector<std::string> loaderCommand{loader, base + ".ui", size[0], size[1]};
    // Once each untimed, so that both find the files and libraries cached.
    runOnce(formwrightCommand);
    runOnce(loaderCommand);
    std::vector<double> formwrightTimes, loaderTimes, formwrightPeaks, loaderPeaks;
    for (int run = 0; run < runs; ++run) {
      for (int step = 0; step < 2; ++step) {
        const bool formwrightsTurn = (run + step) % 2 == 0;
        const Run result = runOnce(formwrightsTurn ? formwrightCommand : loaderCommand);
        (formwrightsTurn ? formwrightTimes : loaderTimes).push_back(result.seconds);
        (formwrightsTurn ? formwrightPeaks : loaderPeaks).push_back(result.peakKiB);
      }
    }
    const double fwTime = median(formwrightTimes), uiTime = median(loaderTimes);
    const double fwPeak = median(formwrightPeaks), uiPeak = median(loaderPeaks);
    std::printf("%8d %12.1f %12.1f %10.2f %14.1f %14.1f %10.2f\n", controls, 1e3 * fwTime, 1e3 * uiTime,
                fwTime / uiTime, fwPeak / 1024, uiPeak / 1024, fwPeak / uiPeak);
    std::remove((base + ".scn").c_str());
    std::remove((base + ".ui").c_str());
  }
  rmdir(directory.c_str());
  return 0;
}
