#include "kbcC_assert.h"

#include "kbcC_catalogue.h"
#include "nex_Exception.h"
#include "nex_Refusal.h"

namespace {

constexpr nex_CatalogueRow contentCatalogue[] = {
    {0, "Unavailable connector components have been specified (CORM: %s)."},
};
static_assert(nex_NumbersRise(contentCatalogue));

}  // namespace

void kbcC_Refuse(int error) {
  nex_Refuse({.texts = kbcC_Catalogue, .commands = kbcC_CommandErrors}, error, __FILE__, __LINE__);
}

void kbcC_RefuseContent(int error, cow_String const& content) {
  atr_String text = nex_RefusalText({.texts = contentCatalogue}, error);
  nex_PrimException<atr_String, 1>(text.ReplaceNonTranslated(1, content)).Throw(__FILE__, __LINE__);
}
