#include "uxLog.h"

#include <cstdarg>
#include <cstdio>
#include <vector>

namespace {
uxLog::Handler& handler()
{
    static uxLog::Handler h;
    return h;
}

std::string format(const char* fmt, va_list args)
{
    va_list copy;
    va_copy(copy, args);
    const int length = std::vsnprintf(nullptr, 0, fmt, copy);
    va_end(copy);
    if (length <= 0)
        return std::string();
    std::vector<char> buffer(static_cast<size_t>(length) + 1);
    std::vsnprintf(buffer.data(), buffer.size(), fmt, args);
    return std::string(buffer.data(), static_cast<size_t>(length));
}
} // namespace

void uxLog::warning(const char* fmt, ...)
{
    if (!fmt)
        return;
    va_list args;
    va_start(args, fmt);
    const std::string message = format(fmt, args);
    va_end(args);
    if (handler())
        handler()(message);
    else
        std::fprintf(stderr, "Warning: %s\n", message.c_str());
}

void uxLog::setHandler(Handler h) { handler() = std::move(h); }
