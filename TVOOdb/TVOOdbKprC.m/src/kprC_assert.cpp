#include "kprC_assert.h"

#include "kprC_catalogue.h"
#include "nex_Refusal.h"

void kprC_Refuse(int code) {
  nex_Refuse({.texts = kprC_Catalogue, .translated = kprC_TranslatedCodes}, code, __FILE__, __LINE__);
}
