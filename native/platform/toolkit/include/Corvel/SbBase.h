// Basic definitions shared by the toolkit's classes.
#pragma once

// The toolkit's boolean: an int flag, 0 or 1.
typedef int SbBool;
