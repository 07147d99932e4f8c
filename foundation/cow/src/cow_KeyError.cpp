#include "cow_KeyError.h"

cow_KeyError::cow_KeyError() : std::out_of_range("no such key") {}

cow_KeyError::~cow_KeyError() = default;

void cow_KeyError::Raise() { throw cow_KeyError(); }
