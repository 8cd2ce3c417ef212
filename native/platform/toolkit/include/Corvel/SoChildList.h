// The children of a group-like node. Appending a child references it; the
// list releases its children when it is destroyed.
#pragma once

#include <Corvel/StandIn.h>

#include <vector>

class SoNode;

class SoChildList {
 public:
  explicit SoChildList(SoNode* parent, int initSize = 0);
  ~SoChildList();
  SoChildList(const SoChildList&) = delete;
  SoChildList& operator=(const SoChildList&) = delete;

  TAVREL_STANDIN_ONLY void append(SoNode* child);
  TAVREL_STANDIN_ONLY int getLength() const { return static_cast<int>(children.size()); }
  SoNode* operator[](int i) const { return children[i]; }
  TAVREL_STANDIN_ONLY SoNode* getParent() const { return parent; }

 private:
  SoNode* parent;
  std::vector<SoNode*> children;
};
