#include "typ_FoundationTypes.h"

#include "typ_Module.h"

namespace {

int useCount = 0;

std::span<typ_Module const> FoundationModules() {
  static typ_Module const modules[] = {
      {typ_mdlModuleId, typ_mdlRows},
      {typ_clsModuleId, typ_clsRows},
      {typ_rgnModuleId, typ_rgnRows},
      {typ_dtmModuleId, typ_dtmRows},
  };
  return modules;
}

}  // namespace

void typ_InitializeFoundation() {
  if (useCount++ > 0) return;
  for (typ_Module const& module : FoundationModules()) module.Insert();
}

void typ_FinalizeFoundation() {
  if (useCount == 0 || --useCount > 0) return;
  for (typ_Module const& module : FoundationModules()) module.Remove();
}
