#include "nex_Exception.h"

nex_PrimExceptionBase::~nex_PrimExceptionBase() = default;
nex_CmdExceptionBase::~nex_CmdExceptionBase() = default;

template class nex_CmdException<cow_String, 1>;
template class nex_CmdException<cow_String, 9>;
template class nex_CmdException<atr_String, 2>;
template class nex_PrimException<cow_String, 3>;
template class nex_PrimException<atr_String, 1>;

void nex_AssertText(char const* expressionText, char const* file, int line) {
  nex_PrimException<cow_String, 3>(expressionText).Throw(file, line);
}
