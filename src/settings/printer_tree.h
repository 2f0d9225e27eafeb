// Everything that the printers tell, as a tree of texts for the settings dialog.
#pragma once

#include <string>
#include <vector>

namespace qor {

struct TreeNode {
  std::string text;
  std::vector<TreeNode> children{};
  bool isDefault = false;  // the node of the default printer
  bool isUnknown = false;  // of a printer that has not been asked yet
};

inline constexpr const char* kPrinterParameters = "Printer Parameters";
inline constexpr const char* kPaperSize = "Paper Size";

// Fills the tree with what is known by now, and asks nobody: the forms of the print server first,
// then the printers, the last one foremost.
void FillPrinterTree(std::vector<TreeNode>& tree);

// The node of one printer in it.
TreeNode printerNode(const std::string& name);

// The node of the print server in it.
TreeNode printServerNode();

}  // namespace qor
