#pragma once

#include "omi_Singleton.h"
#include "uti_TranslationMap.h"

/// The labels of a connector's components of relative motion, by number from 1 to 6: translations, then rotations.
class TVO_API kcnC_CORMLabelMap final : public uti_TranslationMap, public omi_Singleton<kcnC_CORMLabelMap> {
 public:
  kcnC_CORMLabelMap();
};
