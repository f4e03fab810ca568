#include "CommandLineOptions.h"

#include "ReportOptions.h"

const char* const kValidatorShortOptions = "vhc:d:p:qm:";

const struct option* validatorLongOptions() {
    static const struct option table[] = {
        {"help", no_argument, nullptr, 'h'},
        {"version", no_argument, nullptr, 'v'},
        {"directory", required_argument, nullptr, 'd'},
        {"config", required_argument, nullptr, 'c'},
        {"plugins", required_argument, nullptr, 'p'},
        {"mainroot", required_argument, nullptr, 'm'},
        {"quiet", no_argument, nullptr, 'q'},
        ReportOptions::entries[0],
        ReportOptions::entries[1],
        ReportOptions::entries[2],
        ReportOptions::entries[3],
        {nullptr, 0, nullptr, 0},
    };
    return table;
}
