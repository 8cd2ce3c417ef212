/**
 * The nodes of Tavrel: the mesh nodes that hold a mesh, the property nodes that set a value of
 * the traversal for the nodes after them in the scene (data mappings, filters, profiles, text
 * and number formats, hints), and {@link com.kestrum.tavrel.nodes.PoNode}, the base of the nodes
 * written in Java.
 *
 * <h2>Property nodes with named fields</h2>
 *
 * <p>Most property nodes keep their values in named fields, read each time they are used: set
 * them with {@code getField(name).setValue(text)} (numbers as decimal text, flags {@code TRUE}
 * or {@code FALSE}, enumerations as their {@code getValue()}, vectors and colours as their
 * numbers separated by spaces, lists likewise). A text that cannot be read counts as the field's
 * default. Each class lists its fields with their defaults.
 *
 * <p>When an action traverses a property node, the node's value becomes the current one of its
 * kind for the rest of the traversal. A node is released when it is disposed and nothing else in
 * the scene references it.
 */
package com.kestrum.tavrel.nodes;
