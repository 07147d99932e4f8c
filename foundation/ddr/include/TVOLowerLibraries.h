#pragma once

#include "TVOExport.h"

/// The libraries below the modules, in the order in which they are brought up. Each has Name_initialize(int&) and
/// Name_finalize(int&), which count their calls; `depth` rises by 1 with the first start and falls by 1 with the last end.
#define TVO_LOWER_LIBRARIES(LIBRARY) \
  LIBRARY(TVOOdbAttrEO2)             \
  LIBRARY(TVOOdbCoreGeom)            \
  LIBRARY(TVOShpCore)                \
  LIBRARY(TVORomDiagEx)              \
  LIBRARY(TVORomCore)                \
  LIBRARY(TVOTvuGeom)                \
  LIBRARY(TVOTvuBasicUtils)          \
  LIBRARY(TVOBasShared)              \
  LIBRARY(TVOBasCoreUtils)           \
  LIBRARY(TVOBasAlloc)

#define TVO_DECLARE_LIBRARY(Name)            \
  TVO_API void Name##_initialize(int& depth); \
  TVO_API void Name##_finalize(int& depth);
TVO_LOWER_LIBRARIES(TVO_DECLARE_LIBRARY)
#undef TVO_DECLARE_LIBRARY
