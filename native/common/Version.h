// Identification strings of the library. Nothing reads them: they are there
// to be found in the file by tools that look for the "@(#) " marker.
#pragma once

namespace com {
namespace kestrum {
namespace tavrel {
namespace Version {
extern const char* copyrightString;
extern const char* productVersionString;
extern const char* productNameString;
}  // namespace Version
}  // namespace tavrel
}  // namespace kestrum
}  // namespace com
