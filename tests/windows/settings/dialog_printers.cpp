// Queues made up.
#include "windows/settings/dialog_printers.h"

namespace qor::test {
namespace {

const Media kA4 = {"iso_a4_210x297mm", {21000, 29700}, {}};
const Media kA5 = {"iso_a5_148x210mm", {14800, 21000}, {}};
const Media kLetter = {"na_letter_8.5x11in", {21590, 27940}, {}};
const Media kLabel = {"om_label_62x100mm", {6200, 10000}, {}};

Queue near() {
  Queue queue;
  queue.id = {"near", "Near driver", "usb:1"};
  queue.media = {kLetter, kA5, kA4};
  queue.defaultMedia = kA4.name;
  queue.smallest = {7620, 12700};
  queue.largest = {21590, 35560};
  queue.sources = {"auto", "tray-1", "tray-2"};
  queue.color = true;
  return queue;
}

Queue silent() {
  Queue queue;
  queue.id = {"silent", "Silent driver", ""};
  return queue;
}

// In black, on a paper that isn't A4, and with one of its own.
Queue far() {
  Queue queue;
  queue.id = {"far", "Far driver", "usb:2"};
  queue.media = {kA5, kLetter, kLabel};
  queue.defaultMedia = kA5.name;
  queue.sources = {"tray-3"};
  queue.color = false;
  return queue;
}

}  // namespace

DialogPrinters::DialogPrinters() : MadeUpPrinters({near(), silent(), far()}, "near") {
  setSilent(true);
}

}  // namespace qor::test
