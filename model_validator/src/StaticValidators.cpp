// Static validator plug-ins: shared libraries named with -p that check the
// loaded model through the version 4 query interface.

#include <dlfcn.h>

#include <cstdio>
#include <list>
#include <string>

#include "ModelValidator.h"
#include "ZefLog.h"

std::list<void*> _libList;
std::list<const ZefOamApiStaticValidatorInterface_1*> _ifList;

namespace {

void printLine(const std::string& text) {
    std::fputs(text.c_str(), stdout);
    std::fputc('\n', stdout);
}

// Cuts the -p text at ";". After each piece the rest keeps the separator at
// its front, so the next piece is always empty and fails the file check: in
// effect only a single path is accepted. Existing scripts rely on this
// refusal, so it is kept exactly.
bool collectPaths(const std::string& text, std::list<std::string>& paths) {
    std::string rest = text;
    for (;;) {
        std::string::size_type sep = rest.find(';');
        std::string piece = sep == std::string::npos ? rest : rest.substr(0, sep);
        if (!isValid(piece.c_str(), true)) {
            printLine("File  \"" + piece + "\" is not valid.");
            return false;
        }
        paths.push_back(piece);
        if (sep == std::string::npos) {
            return true;
        }
        rest = rest.substr(sep);
    }
}

// The loader searches its library folders for a name without a slash; the
// user named a file that was just checked in the working folder, so that
// file is the one to load.
std::string loaderPath(const std::string& path) {
    return path.find('/') == std::string::npos ? "./" + path : path;
}

void printNotAValidator(const std::string& path) {
    printLine("WARNING:");
    printLine("    File  \"" + path + "\" is not a static validator and was ignored.");
}

// The texts of a plug-in's record; a missing one reads as empty rather than
// ending the run.
const char* textOf(const char* text) { return text != nullptr ? text : ""; }

} // namespace

bool loadLibraries(const char* pathList) {
    std::string text = pathList != nullptr ? pathList : "";
    if (text.empty()) {
        printLine("List of library paths must not be empty.");
        return false;
    }
    std::list<std::string> paths;
    if (!collectPaths(text, paths)) {
        return false;
    }
    for (const std::string& path : paths) {
        dlerror();
        void* handle = dlopen(loaderPath(path).c_str(), RTLD_LAZY);
        if (handle == nullptr) {
            const char* err = dlerror();
            printLine("Failed to open '" + path + "': error (" + (err != nullptr ? err : "") + ")");
            closeLibraries();
            return false;
        }
        dlerror();
        void* entry = dlsym(handle, ZEF_STATIC_VALIDATOR_ENTRY_SYMBOL);
        if (entry == nullptr) {
            // The library stays loaded but is not a checker: say so and go on.
            printNotAValidator(path);
            continue;
        }
        ZefOamApiGetStaticValidatorInterfaceFn getInterface =
            reinterpret_cast<ZefOamApiGetStaticValidatorInterfaceFn>(entry);
        const ZefOamApiStaticValidatorInterface_1* validator = getInterface();
        if (validator == nullptr || validator->check == nullptr) {
            // Nothing to call: treated like a library without the entry.
            printNotAValidator(path);
            continue;
        }
        _ifList.push_back(validator);
        _libList.push_back(handle);
    }
    return true;
}

void closeLibraries() {
    for (void* handle : _libList) {
        dlerror();
        if (dlclose(handle) != 0) {
            const char* err = dlerror();
            printLine(std::string("Failed to close library: error (") + (err != nullptr ? err : "") + ")");
        }
    }
    _libList.clear();
    _ifList.clear();
}

bool haveStaticValidators() { return !_ifList.empty(); }

bool runStaticValidators(const struct ZefOamSpiModelRepository_4* modelIf4, bool quiet,
                         const StaticValidatorResult& onResult) {
    bool allPassed = true;
    for (const ZefOamApiStaticValidatorInterface_1* validator : _ifList) {
        const char* result = nullptr;
        const int ok = validator->check(modelIf4, &result);
        const char* name = textOf(validator->name);
        const char* version = textOf(validator->version);
        const std::string who = std::string(name) + "(" + version + ")";
        // A plug-in that leaves its result unset has nothing to add.
        const char* text = textOf(result);
        if (onResult) {
            onResult(name, version, ok != 0, text);
        }
        if (ok == 0) {
            printLine("    Results of checking dependenciesScripts:");
            printLine(who + " - Validation of model failed: ");
            printLine(text);
            ZEF_TRACE("%s(%s) - Validation result: %s", name, version, text);
            allPassed = false;
        } else if (text[0] == '\0') {
            if (!quiet) {
                printLine("    Results of checking dependenciesScripts:");
                printLine(who + " - Validation of model succeeded");
            }
        } else {
            if (!quiet) {
                printLine("    Results of checking dependenciesScripts:");
                printLine(who + " - Validation of model succeeded, but with information: ");
                printLine(text);
            }
            ZEF_TRACE("%s(%s) - Validation result: %s", name, version, text);
        }
        if (validator->finish != nullptr) {
            validator->finish();
        }
    }
    return allPassed;
}
