/**
 * The elements of a traversal state that the Tavrel nodes set: one class for each, whose static
 * methods set and read the element in a traversal state (the state a Java node or element is
 * given during an {@code apply}, see {@code SoAction.getState}).
 *
 * <h2>Setting and reading</h2>
 *
 * <p>A {@code set} makes its value that of the traversal: the top element of the class's stack,
 * at the state's depth, names the node (or none) and takes the value. An object given is held
 * until the traversal ends, as the element keeps only its address.
 *
 * <p>A getter of a property node's attribute object or of a mesh gives the object that a live Java
 * object stands for as that object (one given to a set, the view that a mesh
 * node's {@code getMesh} gave while that view is reachable, a view returned earlier in the
 * traversal). Any other (the attribute object or mesh of the node that set the element, which
 * lives in that node) comes back as a new view tied to the traversal: it works until the
 * innermost {@code apply} in progress on the calling thread returns, and its node lives at least
 * that long (the scene references it; a node traversed by a direct call is held until the
 * traversal ends), whatever becomes of the node's Java object or of the element. After that the
 * view's methods, and the calls given it, throw {@link java.lang.IllegalStateException}. A view
 * of a mesh cannot be kept: a representation's or probe's {@code setMesh} and the cell
 * constructors refuse it with {@link java.lang.IllegalArgumentException}; to keep the mesh, take
 * it from the mesh node ({@code getMesh}).
 *
 * <p>The static methods throw {@link java.lang.NullPointerException} when the state is null and
 * {@link java.lang.IllegalStateException} when the state's traversal is over or an object given
 * has been disposed. The state makes an element on first use and runs its {@code init}, and a
 * deeper set pushes one (its {@code push} runs): when such an override of a Java element class
 * throws, the call throws {@link java.lang.IllegalArgumentException} with that exception as its
 * cause.
 *
 * <h2>Subclassing</h2>
 *
 * <p>Subclass an element class to take part in traversals: override {@code push}, {@code pop},
 * {@code init}, {@code matches}, {@code copyMatchInfo} or {@code captureThis}; the toolkit calls
 * the overrides on the elements that its traversal states make of the class, once the class's
 * type is enabled ({@code SoAction.enableElement(element.getTypeName(),
 * element.getStackIndex())}). {@code super} reaches the toolkit's behaviour; {@code push} and
 * {@code pop} have none. Each Java class gets a toolkit type named after its binary name, a stack
 * index (that of the element class) and an element key, made by its first object; the toolkit
 * makes further objects with the constructor without arguments. An exception thrown by an
 * override that the toolkit called reaches the Java caller of {@code apply} as an
 * {@link java.lang.IllegalArgumentException} "Exception raised during execution of
 * Custom&lt;element class&gt;.&lt;operation&gt;." (for instance
 * {@code CustomPoDomainElement.push}) with the exception as its cause; the rest of that
 * traversal no longer calls Java.
 *
 * <p>An element made by a traversal state is disposed when the traversal ends. One made with
 * {@code new} belongs to its Java object: dispose it when done (it is {@link
 * java.lang.AutoCloseable}).
 */
package com.kestrum.tavrel.elements;
