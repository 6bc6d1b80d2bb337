#pragma once

#include <QtGlobal>

// The contract is one shared library: a dynamic cast across library borders needs one copy of each
// interface's type information, so every interface class is exported from here.
#if defined(HOSTAPI_LIBRARY)
#define HOSTAPI_EXPORT Q_DECL_EXPORT
#else
#define HOSTAPI_EXPORT Q_DECL_IMPORT
#endif
