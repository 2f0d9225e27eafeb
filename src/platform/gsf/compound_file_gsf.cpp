// Compound files by libgsf: a module of its own.
#include <exception>
#include <memory>

#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-outfile.h>
#include <gsf/gsf-output-stdio.h>
#include <gsf/gsf-utils.h>

#include "platform/workbook/compound_file.h"

namespace qor {
namespace {

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};
template <class Object>
using Gsf = std::unique_ptr<Object, Unref>;

// Takes bytes until the library refuses some.
class GsfSink : public ByteSink {
 public:
  explicit GsfSink(GsfOutput& output) : output_(output) {}

  void write(std::string_view bytes) override {
    if (failed_) return;
    failed_ =
        !gsf_output_write(&output_, bytes.size(), reinterpret_cast<const guint8*>(bytes.data()));
  }
  bool failed() const { return failed_; }

 private:
  GsfOutput& output_;
  bool failed_ = false;
};

std::string reasonOf(const GError* error) {
  return error != nullptr ? error->message : "the file can't be written";
}

std::string writeCompound(std::FILE* file, const std::string& stream,
                          const std::function<void(ByteSink&)>& fill) {
  const Gsf<GsfOutput> output(gsf_output_stdio_new_FILE("", file, TRUE));
  if (!output) return reasonOf(nullptr);
  const Gsf<GsfOutfile> compound(gsf_outfile_msole_new(output.get()));
  if (!compound) return reasonOf(nullptr);
  const Gsf<GsfOutput> part(gsf_outfile_new_child(compound.get(), stream.c_str(), FALSE));
  if (!part) return reasonOf(gsf_output_error(GSF_OUTPUT(compound.get())));
  GsfSink sink(*part);
  fill(sink);
  // The compound file closes what it is written to.
  const bool written = !sink.failed() && gsf_output_close(part.get()) &&
                       gsf_output_close(GSF_OUTPUT(compound.get()));
  if (written) return {};
  return reasonOf(gsf_output_error(output.get()));
}

}  // namespace
}  // namespace qor

extern "C" __attribute__((visibility("default"))) void qorWriteCompound(
    std::FILE* file, const std::string& stream, const std::function<void(qor::ByteSink&)>& fill,
    std::string& reason) {
  gsf_init();
  reason = qor::writeCompound(file, stream, fill);
}
