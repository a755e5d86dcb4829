#pragma once

#include <QtGlobal>

#if defined(UXCORVASTYLE_LIBRARY)
#define UXCORVASTYLE_EXPORT Q_DECL_EXPORT
#else
#define UXCORVASTYLE_EXPORT Q_DECL_IMPORT
#endif
