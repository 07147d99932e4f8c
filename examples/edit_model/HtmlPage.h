#pragma once

#include <ostream>

#include "EditedModel.h"

/// Writes the model as one page that needs nothing else: the steps with their procedures, for each repository the
/// matrix of steps and objects, coloured by status, and for each object its effective values by step.
void WriteHtmlPage(std::ostream& out, EditedModel const& model);
