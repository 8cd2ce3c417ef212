// An input source for reading scene files. The stand-in reads from a string.
#pragma once

#include <string>

class SoInput {
 public:
  SoInput() = default;
  explicit SoInput(const std::string& text) : buffer(text) {}
  virtual ~SoInput();
  void setBuffer(const std::string& text) { buffer = text; position = 0; }
  bool eof() const { return position >= buffer.size(); }
  // Reads the next blank-separated word; false at the end.
  bool read(std::string& word);

 private:
  std::string buffer;
  std::size_t position = 0;
};
