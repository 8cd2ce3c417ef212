// An input source for reading scene files. The stand-in reads from a string.
#pragma once

#include <Corvel/StandIn.h>

#include <string>

class SoInput {
 public:
  SoInput() = default;
  explicit SoInput(const std::string& text) : buffer(text) {}
  virtual ~SoInput();
  TAVREL_STANDIN_ONLY void setBuffer(const std::string& text) { buffer = text; position = 0; }
  TAVREL_STANDIN_ONLY bool eof() const { return position >= buffer.size(); }
  // Reads the next blank-separated word; false at the end.
  TAVREL_STANDIN_ONLY bool read(std::string& word);

 private:
  std::string buffer;
  std::size_t position = 0;
};
