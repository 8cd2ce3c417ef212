// Base of the mesh representations: the mesh drawn, the data mappings that
// colour it (by value and by vector module) and the isovalues that contouring
// uses.
//
// The node keeps the addresses it is given: it neither copies nor frees the
// objects, and the getters return exactly the address last set (null before
// any set). A null address is accepted and means "none".
#pragma once

#include <Tavrel/PoDessvane.h>

class PbMesh;
class PbDataMapping;
class PbIsovaluesList;

class PoMesh : public PoDessvane {
  SO_KIT_HEADER(PoMesh)

 public:
  enum ColoringTypes : int {
    COLORINHERITED = 0,
    COLORAVERAGE = 1,
    COLORMAPPING = 2,
    COLORCONTOURING = 3,
    COLORTEXTURECONTOURING = 4
  };

  void setMesh(PbMesh* mesh);
  PbMesh* getMesh() const;
  void setDataMapping(PbDataMapping* mapping);
  PbDataMapping* getDataMapping() const;
  void setModuleDataMapping(PbDataMapping* mapping);
  PbDataMapping* getModuleDataMapping() const;
  void setIsovaluesList(PbIsovaluesList* isovalues);
  PbIsovaluesList* getIsovaluesList() const;

 protected:
  PoMesh();
  ~PoMesh() override;

 private:
  PbMesh* mesh = nullptr;
  PbDataMapping* dataMapping = nullptr;
  PbDataMapping* moduleDataMapping = nullptr;
  PbIsovaluesList* isovaluesList = nullptr;
};
