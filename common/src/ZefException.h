#ifndef ZEF_EXCEPTION_H
#define ZEF_EXCEPTION_H

#include <cstdarg>
#include <exception>
#include <string>

#include "ZefReturn.h"

namespace Zef {

/// The exception family of the repository code: model errors in component
/// mode and internal faults. Thrown by value; never crosses the C interface,
/// where it becomes a result code.
///
/// The reason is formatted into a fixed buffer, so it is cut at 1023
/// characters. what() is the class name followed by the reason in
/// parentheses, e.g. "ZefInternalException(no such handle)".
class ZefException : public std::exception {
public:
    /// Empty name and reason, code 0.
    ZefException();
    /// The reason as given, code -1.
    explicit ZefException(const std::string& reason);
    /// The reason as given, with an explicit code.
    ZefException(ZefReturnT code, const std::string& reason);
    /// A printf-formatted reason, code -1.
    explicit ZefException(const char* fmt, ...) __attribute__((format(printf, 2, 3)));
    /// A printf-formatted reason with an explicit code.
    ZefException(ZefReturnT code, const char* fmt, ...) __attribute__((format(printf, 3, 4)));
    /// Wraps a cause: takes its code; the reason is the cause's reason, a
    /// comma and the newly formatted text.
    ZefException(const ZefException& cause, const char* fmt, ...) __attribute__((format(printf, 3, 4)));

    ZefException(const ZefException&) = default;
    ZefException& operator=(const ZefException&) = default;
    ~ZefException() override = default;

    /// name + "(" + reason + ")".
    const char* what() const noexcept override;

    /// Formats a new reason (cut at 1023 characters) and rebuilds the what text.
    void setReason(const char* fmt, ...) __attribute__((format(printf, 2, 3)));
    /// Rebuilds the what text from the current name and reason.
    void setWhatString();

    const std::string& getReason() const { return _reason; }
    ZefReturnT getCode() const { return _code; }
    const std::string& getName() const { return _name; }

protected:
    /// For subclasses: sets name and code before any reason is formatted, so
    /// that the what text names the class the user sees.
    void initAs(const char* name, ZefReturnT code);

    /// Formats the reason from a va_list and rebuilds the what text.
    void vsetReason(const char* fmt, va_list args) __attribute__((format(printf, 2, 0)));
    /// The cause form: cause reason + "," + the formatted text.
    void vsetCausedReason(const ZefException& cause, const char* fmt, va_list args)
        __attribute__((format(printf, 3, 0)));

private:
    static const int kReasonBufferSize = 1024;

    char _reasonBuffer[kReasonBufferSize];
    std::string _name;
    std::string _what;
    std::string _reason;
    ZefReturnT _code;
};

/// An internal fault of the repository code that the caller may survive.
class ZefInternalException : public ZefException {
public:
    /// The reason as given, code -1.
    explicit ZefInternalException(const std::string& reason);
    /// A printf-formatted reason, code -1.
    explicit ZefInternalException(const char* fmt, ...) __attribute__((format(printf, 2, 3)));
    /// Wraps a cause: its code, reason = cause reason + "," + formatted text.
    ZefInternalException(const ZefException& cause, const char* fmt, ...)
        __attribute__((format(printf, 3, 4)));
};

/// A broken invariant or failing system call (e.g. a mutex operation).
class ZefInternalErrorException : public ZefException {
public:
    /// The reason as given, code -1.
    explicit ZefInternalErrorException(const std::string& reason);
    /// A printf-formatted reason, code -1.
    explicit ZefInternalErrorException(const char* fmt, ...) __attribute__((format(printf, 2, 3)));
    /// Wraps a cause: its code, reason = cause reason + "," + formatted text.
    ZefInternalErrorException(const ZefException& cause, const char* fmt, ...)
        __attribute__((format(printf, 3, 4)));
};

} // namespace Zef

#endif // ZEF_EXCEPTION_H
