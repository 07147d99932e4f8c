#pragma once

#include "cls_Persistent.h"
#include "typ_FoundationTypes.h"

// Classes that steps hold but that the host defines: it derives its own and registers them.

/// A domain whose mesh adapts in a step.
class TVO_API kadC_AdptMeshDomain : public cls_Persistent {
  CLS_ABSTRACT(mdl, kadC_AdptMeshDomain)
};

/// A set of loads with factors that a perturbation step solves for by itself.
class TVO_API klcC_LoadCase : public cls_Persistent {
  CLS_ABSTRACT(mdl, klcC_LoadCase)
};
