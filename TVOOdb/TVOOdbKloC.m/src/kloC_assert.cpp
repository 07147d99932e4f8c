#include "kloC_assert.h"

#include "kloC_catalogue.h"
#include "nex_Refusal.h"

void kloC_Refuse(int error) {
  nex_Refuse({.texts = kloC_Catalogue, .commands = kloC_CommandErrors}, error, __FILE__, __LINE__);
}
