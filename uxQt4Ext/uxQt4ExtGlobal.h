#pragma once

#include <QtGlobal>

#if defined(UXQT4EXT_LIBRARY)
#define UXQT4EXT_EXPORT Q_DECL_EXPORT
#else
#define UXQT4EXT_EXPORT Q_DECL_IMPORT
#endif
