// Runs one command and reports what it cost, for run_benchmark.py:
//
//   zef_bench_run OUTPUT_FILE COMMAND [ARG...]
//
// writes "<exit status> <wall s> <cpu s> <peak RSS KiB> <bytes written>" to
// OUTPUT_FILE. The command's standard output and error go to this
// program's. CPU time is user plus system time of the command; bytes
// written are every byte the command passed to write(), read from its I/O
// counters before it is reaped, so log files that rotation deleted count
// too. A small launcher of its own keeps the peak memory of the (large)
// benchmark driver out of the command's figures.

#include <sys/resource.h>
#include <sys/time.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace {

double seconds(const struct timeval& tv) { return static_cast<double>(tv.tv_sec) + tv.tv_usec / 1e6; }

double now() {
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return static_cast<double>(ts.tv_sec) + ts.tv_nsec / 1e9;
}

long long bytesWritten(pid_t pid) {
    char path[64];
    std::snprintf(path, sizeof(path), "/proc/%d/io", static_cast<int>(pid));
    FILE* io = std::fopen(path, "r");
    if (io == nullptr)
        return -1;
    long long written = -1;
    char line[256];
    while (std::fgets(line, sizeof(line), io) != nullptr) {
        if (std::strncmp(line, "wchar:", 6) == 0)
            written = std::atoll(line + 6);
    }
    std::fclose(io);
    return written;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: zef_bench_run OUTPUT_FILE COMMAND [ARG...]\n");
        return 2;
    }
    const double start = now();
    const pid_t pid = fork();
    if (pid < 0) {
        std::perror("fork");
        return 2;
    }
    if (pid == 0) {
        execvp(argv[2], argv + 2);
        std::perror(argv[2]);
        _exit(127);
    }
    siginfo_t info;
    std::memset(&info, 0, sizeof(info));
    // Not reaped yet: its I/O counters are still readable.
    if (waitid(P_PID, static_cast<id_t>(pid), &info, WEXITED | WNOWAIT) != 0) {
        std::perror("waitid");
        return 2;
    }
    const double wall = now() - start;
    const long long written = bytesWritten(pid);
    int status = 0;
    struct rusage usage;
    if (wait4(pid, &status, 0, &usage) != pid) {
        std::perror("wait4");
        return 2;
    }
    const int exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    FILE* out = std::fopen(argv[1], "w");
    if (out == nullptr) {
        std::perror(argv[1]);
        return 2;
    }
    std::fprintf(out, "%d %.6f %.6f %ld %lld\n", exitStatus, wall, seconds(usage.ru_utime) + seconds(usage.ru_stime),
                 usage.ru_maxrss, written);
    std::fclose(out);
    return 0;
}
