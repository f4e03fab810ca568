#include "CompileReporter.h"

#include <cstdarg>
#include <cstdio>
#include <utility>

#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

/// The size of the repository's message buffer.
const size_t textSize = 4096;

std::string formatArgs(const char* format, va_list args)
{
    char buffer[textSize];
    vsnprintf(buffer, sizeof buffer, format, args);
    return buffer;
}

} // namespace

CompileReporter::CompileReporter(Sink sink) : _sink(std::move(sink))
{
}

void CompileReporter::report(unsigned short level, const char* format, ...) const
{
    va_list args;
    va_start(args, format);
    const std::string text = formatArgs(format, args);
    va_end(args);
    _sink(level, text);
}

void CompileReporter::report(unsigned short level, const std::string& text) const
{
    _sink(level, text);
}

std::string CompileReporter::format(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const std::string text = formatArgs(format, args);
    va_end(args);
    return text;
}

bool CompileReporter::traceEnabled()
{
    return Zef::LoggingWrapper::instance()->get_level() >= ZEF_LOG_LEVEL_TRACE;
}

} // namespace ZefModelRepositoryService
