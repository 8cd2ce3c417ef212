// What the stand-ins have beyond the interfaces of the real toolkit and
// binding core.
//
// TAVREL_STANDIN_ONLY marks a member that the stand-in needs for itself or
// for its tests but that the real headers do not promise. The product's
// units are compiled with TAVREL_PRODUCT_UNIT defined (and deprecated
// declarations as errors, the stand-ins' headers as system headers), so a
// product unit that uses such a member does not compile; the stand-ins, their
// tests and the test libraries see every member as usual.
//
// TAVREL_ASSUMED marks a member that the product uses although the real
// headers' interface describes it only in words: each is an assumption about
// the real headers, listed in docs/stand-ins.md ("What the product may use").
#pragma once

#if defined(TAVREL_PRODUCT_UNIT)
#define TAVREL_STANDIN_ONLY [[deprecated("a member of the stand-in only, not of the toolkit's or binding core's interface")]]
#else
#define TAVREL_STANDIN_ONLY
#endif

#define TAVREL_ASSUMED
