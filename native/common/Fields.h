// Single-value fields: the value inside the field, set and compared by
// reference, and a field attached to a field container under a name.
#pragma once

#include <jni.h>

#include <Corvel/SoField.h>
#include <Corvel/SoNode.h>
#include <CorvelJNI/StringHelper.h>

#include <type_traits>
#include <utility>

#include "common/Handles.h"

namespace tavrel {

// The class of the value a field holds: what its getValue gives.
template <class Field>
using FieldValue = std::decay_t<decltype(std::declval<Field&>().getValue())>;

// The address of the value inside the field (the field's inline getValue:
// evaluated first when the field says it must). Nothing is copied.
template <class Field>
inline jlong fieldValue(jlong field) {
  return toHandle(&fromHandle<Field>(field)->getValue());
}

// field.setValue(value) with the value the handle designates.
template <class Field>
inline void setFieldValue(jlong field, jlong value) {
  fromHandle<Field>(field)->setValue(*fromHandle<const FieldValue<Field>>(value));
}

// field == other, the toolkit's int flag as a jboolean.
template <class Field>
inline jboolean fieldsEqual(jlong field, jlong other) {
  return toJBoolean(*fromHandle<const Field>(field) == *fromHandle<const Field>(other));
}

// Attaches the field to the container (a node), in this order: the
// container's field data is asked for, the initial value set (the field has
// no container yet), the container set, the low three bits of the type
// stored as the field type, and the field added to the field data under the
// name (UTF-8, released afterwards).
template <class Field>
inline void addFieldToContainer(JNIEnv* env, jlong field, jlong container, jstring name, jint fieldType,
                                jlong value) {
  Field* f = fromHandle<Field>(field);
  SoFieldContainer* owner = fromHandle<SoNode>(container);
  SoFieldData* data = const_cast<SoFieldData*>(owner->getFieldData());
  f->setValue(*fromHandle<const FieldValue<Field>>(value));
  f->setContainer(owner);
  f->flags.fieldType = static_cast<unsigned int>(fieldType) & 7u;  // the other flags stay
  StringHelper utf(env, name);
  data->addField(nullptr, utf.toUTFString(), f);
}

}  // namespace tavrel
