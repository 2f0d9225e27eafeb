// Values of records as numbers. What can't be read is 0.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/pdf/pdf_content.h"

namespace qor {

std::int32_t integerOf(std::string_view value);
double realOf(std::string_view value, double otherwise = 0);
PdfColor colorOf(std::string_view value);

// Twips as whole points.
double wholePoints(std::string_view twips);

}  // namespace qor
