#ifndef ZEF_COMPILE_REPORTER_H
#define ZEF_COMPILE_REPORTER_H

#include <functional>
#include <string>

namespace ZefModelRepositoryService {

/// The reporting channel of the compilation helpers that live outside the
/// repository class: formats a finding printf-style and hands the text to
/// the repository, which logs and records it at its level (3 error,
/// 4 warning). Also the one place that tells whether traces are written,
/// so that a helper formats a trace text only when it is.
class CompileReporter {
public:
    /// Receives every formatted finding with its level.
    using Sink = std::function<void(unsigned short level, const std::string& text)>;

    explicit CompileReporter(Sink sink);

    /// Formats and hands on one finding; the text is cut at 4095 characters
    /// as the repository's message buffer cuts it.
    void report(unsigned short level, const char* format, ...) const __attribute__((format(printf, 3, 4)));
    /// Hands on an already formatted finding.
    void report(unsigned short level, const std::string& text) const;

    /// printf-style formatting into a string, cut at 4095 characters.
    static std::string format(const char* format, ...) __attribute__((format(printf, 1, 2)));
    /// True when the log level lets debug traces through.
    static bool traceEnabled();

private:
    Sink _sink;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_COMPILE_REPORTER_H
