#include "ZefException.h"

#include <cstdio>

namespace Zef {

namespace {
const char* const kBaseName = "ZefException";
const char* const kInternalName = "ZefInternalException";
const char* const kInternalErrorName = "ZefInternalErrorException";
} // namespace

ZefException::ZefException() : _code(ZefOk) {
    _reasonBuffer[0] = '\0';
    setWhatString();
}

ZefException::ZefException(const std::string& reason) : ZefException() {
    initAs(kBaseName, ZefFailure);
    setReason("%s", reason.c_str());
}

ZefException::ZefException(ZefReturnT code, const std::string& reason) : ZefException() {
    initAs(kBaseName, code);
    setReason("%s", reason.c_str());
}

ZefException::ZefException(const char* fmt, ...) : ZefException() {
    initAs(kBaseName, ZefFailure);
    va_list args;
    va_start(args, fmt);
    vsetReason(fmt, args);
    va_end(args);
}

ZefException::ZefException(ZefReturnT code, const char* fmt, ...) : ZefException() {
    initAs(kBaseName, code);
    va_list args;
    va_start(args, fmt);
    vsetReason(fmt, args);
    va_end(args);
}

ZefException::ZefException(const ZefException& cause, const char* fmt, ...) : ZefException() {
    initAs(kBaseName, cause.getCode());
    va_list args;
    va_start(args, fmt);
    vsetCausedReason(cause, fmt, args);
    va_end(args);
}

const char* ZefException::what() const noexcept { return _what.c_str(); }

void ZefException::setReason(const char* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    vsetReason(fmt, args);
    va_end(args);
}

void ZefException::setWhatString() { _what = _name + "(" + _reason + ")"; }

void ZefException::initAs(const char* name, ZefReturnT code) {
    _name = name;
    _code = code;
    setWhatString();
}

void ZefException::vsetReason(const char* fmt, va_list args) {
    if (fmt == nullptr) {
        _reasonBuffer[0] = '\0';
    } else {
        // vsnprintf cuts and terminates: the reason never exceeds 1023 characters.
        std::vsnprintf(_reasonBuffer, sizeof(_reasonBuffer), fmt, args);
    }
    _reason = _reasonBuffer;
    setWhatString();
}

void ZefException::vsetCausedReason(const ZefException& cause, const char* fmt, va_list args) {
    char added[kReasonBufferSize];
    added[0] = '\0';
    if (fmt != nullptr)
        std::vsnprintf(added, sizeof(added), fmt, args);
    setReason("%s,%s", cause.getReason().c_str(), added);
}

ZefInternalException::ZefInternalException(const std::string& reason) {
    initAs(kInternalName, ZefFailure);
    setReason("%s", reason.c_str());
}

ZefInternalException::ZefInternalException(const char* fmt, ...) {
    initAs(kInternalName, ZefFailure);
    va_list args;
    va_start(args, fmt);
    vsetReason(fmt, args);
    va_end(args);
}

ZefInternalException::ZefInternalException(const ZefException& cause, const char* fmt, ...) {
    initAs(kInternalName, cause.getCode());
    va_list args;
    va_start(args, fmt);
    vsetCausedReason(cause, fmt, args);
    va_end(args);
}

ZefInternalErrorException::ZefInternalErrorException(const std::string& reason) {
    initAs(kInternalErrorName, ZefFailure);
    setReason("%s", reason.c_str());
}

ZefInternalErrorException::ZefInternalErrorException(const char* fmt, ...) {
    initAs(kInternalErrorName, ZefFailure);
    va_list args;
    va_start(args, fmt);
    vsetReason(fmt, args);
    va_end(args);
}

ZefInternalErrorException::ZefInternalErrorException(const ZefException& cause, const char* fmt, ...) {
    initAs(kInternalErrorName, cause.getCode());
    va_list args;
    va_start(args, fmt);
    vsetCausedReason(cause, fmt, args);
    va_end(args);
}

} // namespace Zef
