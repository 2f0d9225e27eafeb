// Printer control sequences that reports still carry: a mix of Epson and PCL forms. The few that
// change what a page looks like are obeyed, the rest is stepped over.
#pragma once

#include <cstddef>
#include <string_view>

namespace qor {

struct FontState;
struct VSetPage;

// Runs the sequences that start at `cursor` and moves it behind them: any number of ESC commands
// and then at most one single control byte. Page commands need `page`, which is null inside a line.
// Commands cut off by the end of the text are read as far as they go.
void RunControlSequences(std::string_view text, std::size_t& cursor, VSetPage* page,
                         FontState& font);

// A sign, digits and a fraction, of which four places count. Returns the number of bytes used: 0
// where there is no number (then `value` is 0), 1 for a sign alone.
std::size_t ReadNumber(std::string_view text, double& value);

}  // namespace qor
