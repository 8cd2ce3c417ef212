#include <Corvel/CallJournal.h>
#include <Corvel/SoChildList.h>
#include <Corvel/SoGroup.h>

SO_NODE_SOURCE(SoGroup, SoNode, "Group")

SoGroup::SoGroup() : children(new SoChildList(this)) { initClass(); }
SoGroup::~SoGroup() { delete children; }

void SoGroup::addChild(SoNode* child) {
  CallJournal::record("SoGroup::addChild", static_cast<const void*>(child));
  children->append(child);
}

int SoGroup::getNumChildren() const { return children->getLength(); }
SoChildList* SoGroup::getChildren() const { return children; }
