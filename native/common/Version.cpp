#include "common/Version.h"

#include <Corvel/SoModuleCheck.h>

#include "tavrel_revision.h"  // TAVREL_SOURCE_REVISION, written at build time

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

namespace com {
namespace kestrum {
namespace tavrel {
namespace Version {
[[gnu::used]] const char* copyrightString = "@(#) Copyright (C) 2019-2026 Kestrum. All rights reserved.";
[[gnu::used]] const char* productVersionString = "@(#) " TAVREL_VERSION_NUMBERS ".Release." TAVREL_SOURCE_REVISION;
[[gnu::used]] const char* productNameString = "@(#) Kestrum(R) Java Tavrel native library for Linux";
}  // namespace Version
}  // namespace tavrel
}  // namespace kestrum
}  // namespace com
