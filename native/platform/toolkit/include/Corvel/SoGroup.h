// A node with an ordered list of children. Actions traverse the children in
// order; a child added twice is traversed twice.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SoNode.h>

class SoGroup : public SoNode {
  SO_NODE_HEADER(SoGroup)

 public:
  SoGroup();
  TAVREL_STANDIN_ONLY void addChild(SoNode* child);
  TAVREL_STANDIN_ONLY int getNumChildren() const;
  SoChildList* getChildren() const override;

 protected:
  ~SoGroup() override;

 private:
  SoChildList* children;
};
