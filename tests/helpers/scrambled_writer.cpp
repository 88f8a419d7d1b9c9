#include "helpers/scrambled_writer.h"

#include "text/MSimpleCrypto.h"

namespace jeerbox::testing {

ScrambledWriter& ScrambledWriter::Section(const std::string& key) {
  if (!mBytes.empty()) Blank();
  return Raw("[" + SimpleCrypt(key) + "]");
}

ScrambledWriter& ScrambledWriter::Lines(const std::vector<std::string>& texts) {
  for (const std::string& text : texts) Line(text);
  return *this;
}

ScrambledWriter& ScrambledWriter::Line(const std::string& text) { return Raw(SimpleCrypt(text)); }

ScrambledWriter& ScrambledWriter::Comment(const std::string& text) { return Raw(";" + text); }

ScrambledWriter& ScrambledWriter::Blank() { return Raw(""); }

ScrambledWriter& ScrambledWriter::Marker() { return Raw(SimpleCrypt("<XT>")); }

ScrambledWriter& ScrambledWriter::Raw(const std::string& bytes, bool eol) {
  mBytes += bytes;
  if (eol) mBytes += "\r\n";
  return *this;
}

ScrambledWriter& ScrambledWriter::NoFinalLineEnd() {
  if (mBytes.size() >= 2 && mBytes.compare(mBytes.size() - 2, 2, "\r\n") == 0)
    mBytes.resize(mBytes.size() - 2);
  return *this;
}

}  // namespace jeerbox::testing
