#include "ddr_Model.h"

#include <string>

#include "nex_Exception.h"

namespace {

ddr_DdbContainer::Extensions& Registered() {
  static ddr_DdbContainer::Extensions registered;
  return registered;
}

}  // namespace

mdl_Extension const& ddr_DdbContainer::ConstGetExtension(cow_String const& name) const {
  auto const* const holder = extensions.Find(name);
  if (holder == nullptr) {
    nex_CmdException<cow_String, 1>(name).Throw(__FILE__, __LINE__);
  }
  return holder->ConstGet().ConstGetValue();
}

mdl_Extension& ddr_DdbContainer::GetExtension(cow_String const& name) {
  ConstGetExtension(name);
  return extensions.Get(name).Get().GetValue();
}

ddr_Model::ddr_Model() {
  for (auto const& entry : Registered()) {
    extensions.Insert(entry.key, entry.value);
  }
}

#define DDR_DEFINE(Name, member)                                                                             \
  void ddr_Model::Register##Name##Container(mdl_Extension* wrapper) { Registered().Insert(member, wrapper); } \
  void ddr_Model::UnRegister##Name##Container() { Registered().Remove(member); }
DDR_MODEL_CONTAINERS(DDR_DEFINE)
#undef DDR_DEFINE

cls_AttributeTable const& ddr_Model::Attributes() {
  static auto const table = cls_Describe<ddr_Model>("ddr_Model", 203).Attribute("extension", &ddr_Model::extensions);
  return table;
}
