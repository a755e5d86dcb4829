#pragma once

#include <QtGlobal>

#if defined(UXICONMANAGER_LIBRARY)
#define UXICONMANAGER_EXPORT Q_DECL_EXPORT
#else
#define UXICONMANAGER_EXPORT Q_DECL_IMPORT
#endif
