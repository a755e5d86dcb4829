#pragma once

#include <QtGlobal>

#if defined(UXUTILS_LIBRARY)
#define UXUTILS_EXPORT Q_DECL_EXPORT
#else
#define UXUTILS_EXPORT Q_DECL_IMPORT
#endif
