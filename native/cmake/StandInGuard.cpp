// Compiled at configure time as a product unit: with TAVREL_USE_STANDIN_MEMBER
// it uses a member that only the stand-ins have, and must then fail to
// compile; without it, it uses what the product may use, and must compile.
#include <Corvel/SoField.h>
#include <Corvel/SoType.h>

int probe(SoField& field) {
#ifdef TAVREL_USE_STANDIN_MEMBER
  field.setFieldType(1);
#endif
  field.flags.fieldType = 1u;
  return SoType::badType().isBad() ? 1 : 0;
}
