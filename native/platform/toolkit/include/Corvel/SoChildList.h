// The children of a group-like node. Appending a child references it; the
// list releases its children when it is destroyed.
#pragma once

#include <vector>

class SoNode;

class SoChildList {
 public:
  explicit SoChildList(SoNode* parent, int initSize = 0);
  ~SoChildList();
  SoChildList(const SoChildList&) = delete;
  SoChildList& operator=(const SoChildList&) = delete;

  void append(SoNode* child);
  int getLength() const { return static_cast<int>(children.size()); }
  SoNode* operator[](int i) const { return children[i]; }
  SoNode* getParent() const { return parent; }

 private:
  SoNode* parent;
  std::vector<SoNode*> children;
};
