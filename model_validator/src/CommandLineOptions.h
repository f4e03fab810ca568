#ifndef ZEF_COMMAND_LINE_OPTIONS_H
#define ZEF_COMMAND_LINE_OPTIONS_H

#include <getopt.h>

/// The short options of the validator; scripts depend on them, so they
/// never change.
extern const char* const kValidatorShortOptions;

/// The long options of the validator, ending in an all-null entry: the long
/// forms of the short options, then the report options.
const struct option* validatorLongOptions();

#endif // ZEF_COMMAND_LINE_OPTIONS_H
