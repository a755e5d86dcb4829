#pragma once

#include "uxUtilsGlobal.h"

#include <functional>
#include <string>

/**
 * The host log. Messages are printf-formatted and written to standard error
 * with a "Warning: " prefix, unless a handler is installed:
 * @code
 * QStringList seen;
 * uxLog::setHandler([&](const std::string& m) { seen << QString::fromStdString(m); });
 * @endcode
 */
class UXUTILS_EXPORT uxLog
{
public:
    using Handler = std::function<void(const std::string& message)>;

    static void warning(const char* format, ...)
#if defined(__GNUC__)
        __attribute__((format(printf, 1, 2)))
#endif
        ;

    /// Replaces the output of warning(); an empty handler restores stderr.
    static void setHandler(Handler handler);
};
