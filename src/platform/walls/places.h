// Where things are on this machine that runs need, and that may have to be read behind a wall. What
// is told needn't be there.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qor {

using Places = std::vector<std::string>;

// The directories of a list with colons between them.
Places placesIn(std::string_view list);

// The directory in which the system finds the file, and that of the file to which a link of this
// name leads, be it there or not; empty where it is no link, or leads in a circle.
std::string placeOf(const std::string& file);
std::string placeBehindLink(const std::string& file);

// What the loader, code pages, locales and time zones need.
Places placesOfLibraries();

// Whether a host is told by a name that only a server of names may know.
bool mustBeLookedUp(std::string_view host);

// What finding a print scheduler and talking to it needs: CUPS's settings, users and hosts by their
// names, certificates.
Places placesOfPrinting();

}  // namespace qor
