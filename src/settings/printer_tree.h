// Everything that the printers tell, as a tree of texts for the settings dialog.
#pragma once

#include <string>
#include <vector>

namespace qor {

struct TreeNode {
  std::string text;
  std::vector<TreeNode> children{};
  bool isDefault = false;  // the node of the default printer
};

// Looks for printers anew and fills the tree: the forms of the print server first, then the
// printers, the last one foremost.
void FillPrinterTree(std::vector<TreeNode>& tree);

}  // namespace qor
