// The pages that the page list of the settings takes.
#include "document/page_list.h"
#include "document/vdoc.h"

namespace qor {

void VDoc::SelectPages() {
  const PageList list(Settings.Page.PagesForPrint);
  if (list.isEmpty()) return;
  for (VDocPage& page : Pages) page.Selected = list.has(page.Number);
}

}  // namespace qor
