// Access interfaces of the extension's Java-extensible classes. The two node ones are empty:
// PoNode and PoCellFilter have no protected operation that Java reaches.
// Like the binding core's own access interfaces they have no virtual
// destructor.
#pragma once

class IPoNodeProtectedMethodAccess {};

class IPoCellFilterProtectedMethodAccess {};

// Access interfaces of the thirteen Java-extensible elements: all empty (the
// element operations Java reaches are those of ISoElementProtectedMethodAccess).
class IPoBevelEdgeElementProtectedMethodAccess {};
class IPoCellFilterElementProtectedMethodAccess {};
class IPoDataMappingElementProtectedMethodAccess {};
class IPoDateFormatMappingElementProtectedMethodAccess {};
class IPoDomainElementProtectedMethodAccess {};
class IPoIsovaluesListElementProtectedMethodAccess {};
class IPoLabelHintsElementProtectedMethodAccess {};
class IPoMesh1DFilterElementProtectedMethodAccess {};
class IPoMesh1DHintsElementProtectedMethodAccess {};
class IPoMeshElementProtectedMethodAccess {};
class IPoMiscTextAttrElementProtectedMethodAccess {};
class IPoNumericDisplayFormatElementProtectedMethodAccess {};
class IPoProfileElementProtectedMethodAccess {};
