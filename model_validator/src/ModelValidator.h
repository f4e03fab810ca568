#ifndef ZEF_MODEL_VALIDATOR_H
#define ZEF_MODEL_VALIDATOR_H

#include <functional>
#include <list>
#include <string>

#include "ZefOamApiStaticValidator.h"

/// Chooses the log file name and level from the environment before anything
/// else logs.
void initLoggingWrapper();
/// Prints the usage text.
void displayHelp();
/// Prints the version label and a newline.
void displayVersion();
/// True when `path` exists, is a regular file (wantFile) or a directory
/// (!wantFile), and is readable. Never prints.
bool isValid(const char* path, bool wantFile);
/// True when the extension of the last path component is exactly "xml".
bool isXml(const char* path);
/// Appends the readable XML files of `dir`, in byte-wise order of their
/// names; false when `dir` is not a readable directory.
bool getFileList(const char* dir, std::list<std::string>& files);
/// Appends the paths named in a list file, one per line; -1 when it stopped
/// at a line that names no readable file, else 0. Throws Zef::ZefException
/// when the list file itself cannot be read.
int getFileContents(const std::string& listFile, std::list<std::string>& files);

/// Loads the static validator libraries of one -p argument; false (with its
/// messages printed) when the text is empty, a path is invalid or a library
/// cannot be opened.
bool loadLibraries(const char* pathList);
/// Unloads every loaded library and empties both lists.
void closeLibraries();
/// Receives each plug-in's result: its name, version, whether the model
/// passed, and its result text ("" when unset).
using StaticValidatorResult = std::function<void(const char* name, const char* version, bool passed, const char* result)>;
/// Runs every loaded plug-in against the version 4 query interface table,
/// handing each result to `onResult` (when set); returns false when any of
/// them reported failure.
bool runStaticValidators(const struct ZefOamSpiModelRepository_4* modelIf4, bool quiet,
                         const StaticValidatorResult& onResult = StaticValidatorResult());
/// True when at least one plug-in is loaded.
bool haveStaticValidators();

#endif // ZEF_MODEL_VALIDATOR_H
