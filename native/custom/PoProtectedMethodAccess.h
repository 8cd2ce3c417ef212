// Access interfaces of the extension's Java-extensible classes. Both are empty:
// PoNode and PoCellFilter have no protected operation that Java reaches.
// Like the binding core's own access interfaces they have no virtual
// destructor.
#pragma once

class IPoNodeProtectedMethodAccess {};

class IPoCellFilterProtectedMethodAccess {};
