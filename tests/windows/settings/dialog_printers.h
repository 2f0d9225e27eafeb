// Printers of a test's own in the place of the machine's, for as long as the object lives: "near",
// which is the default one, "silent", which doesn't answer before it is let, "far", and the printer
// that makes PDF files.
#pragma once

#include "support/made_up_printers.h"

namespace qor::test {

class DialogPrinters : public MadeUpPrinters {
 public:
  DialogPrinters();
};

}  // namespace qor::test
