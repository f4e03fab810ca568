/* Runs one command with a time bound and records its time and peak memory.
 *
 * usage: zef_bounded_run SECONDS STATS_FILE COMMAND [ARGUMENT...]
 *
 * Standard input, output and error are the command's own. The command runs
 * in a session of its own; when it is still running after SECONDS, the whole
 * session is killed and the exit status is 124. Otherwise the exit status is
 * the command's (128 + N when signal N ended it; 127 when it could not be
 * started). STATS_FILE receives one line:
 *   seconds=<wall seconds> memory_kib=<peak resident KiB> timed_out=<0|1>
 * where the peak covers the command and every process it collected itself.
 * Written in C so that the measured process starts from a small one: the
 * peak of a process counts the memory it had before it started the command.
 */
#define _GNU_SOURCE
#include <errno.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

static double now(void) {
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return (double)ts.tv_sec + (double)ts.tv_nsec / 1e9;
}

int main(int argc, char** argv) {
    if (argc < 4) {
        fprintf(stderr, "usage: zef_bounded_run SECONDS STATS_FILE COMMAND [ARGUMENT...]\n");
        return 2;
    }
    const double seconds = strtod(argv[1], NULL);
    const double start = now();
    const pid_t child = fork();
    if (child < 0) {
        perror("zef_bounded_run: fork");
        return 2;
    }
    if (child == 0) {
        setsid();
        execvp(argv[3], argv + 3);
        perror("zef_bounded_run: exec");
        _exit(127);
    }
    int status = 0;
    int timedOut = 0;
    struct rusage usage;
    for (;;) {
        const pid_t done = wait4(child, &status, WNOHANG, &usage);
        if (done == child) {
            break;
        }
        if (done < 0 && errno != EINTR) {
            perror("zef_bounded_run: wait4");
            return 2;
        }
        if (now() - start >= seconds) {
            timedOut = 1;
            kill(-child, SIGKILL);
            while (wait4(child, &status, 0, &usage) < 0 && errno == EINTR) {
            }
            break;
        }
        const struct timespec pause = {0, 5000000};
        nanosleep(&pause, NULL);
    }
    const double elapsed = now() - start;
    /* Whatever the command left running in its session goes with it. */
    kill(-child, SIGKILL);
    FILE* out = fopen(argv[2], "w");
    if (out != NULL) {
        fprintf(out, "seconds=%.3f memory_kib=%ld timed_out=%d\n", elapsed, usage.ru_maxrss, timedOut);
        fclose(out);
    }
    if (timedOut) {
        return 124;
    }
    if (WIFSIGNALED(status)) {
        return 128 + WTERMSIG(status);
    }
    return WEXITSTATUS(status);
}
