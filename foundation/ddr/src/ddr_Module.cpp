#include "ddr_Module.h"

#include "typ_FoundationTypes.h"

void ddr_Module::Initialize(int& depth) {
  if (!uses_.Enter(depth)) return;
  if (tables_.keep != nullptr) tables_.keep();
  if (!tables_.types.empty()) typ_ArchCompTable::InsertEntry(static_cast<unsigned short>(tables_.id), ArchEntry());
  for (ddr_ModuleContainer const& container : tables_.containers) container.enter();
  cls_MetadataRegistrar& registrar = cls_MetadataRegistrar::Instance();
  for (ddr_ModuleClass const& entry : tables_.classes) registrar.initClassMetadata(entry.registration, entry.phase);
  registrar.RunPhases();
  if (tables_.oldClasses.enter != nullptr) tables_.oldClasses.enter();
}

void ddr_Module::Finalize(int& depth) {
  if (!uses_.Leave(depth)) return;
  if (tables_.containersEndFirst) RemoveContainers();
  EndSingletons();
  if (!tables_.containersEndFirst) RemoveContainers();
  if (tables_.oldClasses.remove != nullptr) tables_.oldClasses.remove();
  for (ddr_ModuleClass const& entry : tables_.classes) {
    cls_AttributeTable const& attributes = entry.attributes();
    cls_ClassRegistrar::Present().DeleteClass(attributes.Name(), attributes.TypeId());
  }
  if (types_.has_value()) types_->Remove();
}

typ_ArchCompEntry ddr_Module::ArchEntry() {
  if (!types_.has_value()) {
    // The rows name parents in the foundation's table.
    typ_InitializeFoundation();
    types_.emplace(static_cast<unsigned short>(tables_.id), tables_.types);
    typ_FinalizeFoundation();
  }
  return types_->ArchEntry();
}

void ddr_Module::EndSingletons() const {
  for (auto const end : tables_.singletonEnds) end();
}

void ddr_Module::RemoveContainers() const {
  for (ddr_ModuleContainer const& container : tables_.containers) container.remove();
}
