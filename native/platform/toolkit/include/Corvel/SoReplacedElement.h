// An element whose value is replaced as a whole by the node that sets it.
//
// Rules of this toolkit:
//  - The element names the node that set its value (null for the default
//    value) and holds a reference on it: a node that everything else lets go
//    of during a traversal stays alive while an element names it, that is
//    until the element is given another node or deleted with the state.
//  - matches(e) is true when e names the same node; copyMatchInfo makes a new
//    element of the same type (SoType::createInstance) naming the same node,
//    owned by the caller (null when the type cannot make one).
//  - commonInit forgets the node (without releasing it: it runs on new
//    elements, which hold none).
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SoElement.h>

class SoNode;

class SoReplacedElement : public SoElement {
 public:
  static void initClass();
  static SoType getClassTypeId();

  ~SoReplacedElement() override;
  void commonInit() override;
  void init(SoState* state) override;
  SbBool matches(const SoElement* element) const override;
  SoElement* copyMatchInfo() const override;
  void print(FILE* fp) const override;

  TAVREL_STANDIN_ONLY SoNode* getNode() const { return node; }

 protected:
  SoReplacedElement();
  // Names the node (the new reference first: it may be the same node).
  TAVREL_STANDIN_ONLY void setNode(SoNode* node);
  // The top element of the stack made writable, now naming the node; null
  // when the state could not make one.
  TAVREL_STANDIN_ONLY static SoReplacedElement* getElement(SoState* state, int stackIndex, SoNode* node);

 private:
  SoNode* node = nullptr;
};
