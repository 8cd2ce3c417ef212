package com.kestrum.tavrel.elements;

import com.kestrum.corvel.elements.SoReplacedElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.data.PbMesh;
import com.kestrum.tavrel.data.PbMesh1D;
import com.kestrum.tavrel.data.PbMesh2D;
import com.kestrum.tavrel.data.PbMesh3D;
import com.kestrum.tavrel.internal.JarInitializer;
import java.util.concurrent.atomic.AtomicBoolean;

/**
 * The element of a traversal state that holds the mesh that the representations after it without a mesh of their own draw.
 *
 * <p>See {@link com.kestrum.tavrel.elements the package} for its static methods, its life and
 * subclassing it.
 */
public abstract class PoMeshElement extends SoReplacedElement {
    static {
        JarInitializer.init();
        nativeDerivedClassInit();
    }

    /**
     * A new element of the Java subclass, bound to its class's toolkit type.
     *
     * @throws IllegalArgumentException when a class of another class loader has a toolkit type of
     *     the same name
     */
    protected PoMeshElement() {
        this(ElementTypes.ownership());
    }

    private PoMeshElement(AtomicBoolean owns) {
        super(ctorImpl(), owns);
        registerAsPeer(false);
        ElementTypes.bind(this, getNativeResourceHandleInternal(), owns.get(), PoMeshElement::initCustomClass);
    }

    /**
     * The name of the toolkit type of the element class (the parent of every Java subclass's type).
     *
     * @return the type name
     */
    public static String getClassTypeName() {
        return getClassTypeId();
    }

    /**
     * The stack index of the toolkit element class, shared by the Java subclasses.
     *
     * @return the index
     */
    public static int getClassStackIndex() {
        return getClassStackIndexImpl();
    }

    /**
     * Makes the 1D mesh the mesh of the traversal (see the package).
     *
     * @param state the traversal state
     * @param node the node that sets the mesh, or null
     * @param mesh the mesh, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static void set(SoState state, SoNode node, PbMesh1D mesh) {
        ElementCalls.set(state, node, mesh, "mesh", PoMeshElement::setImpl);
    }

    /**
     * Makes the 2D mesh the mesh of the traversal (see the package).
     *
     * @param state the traversal state
     * @param node the node that sets the mesh, or null
     * @param mesh the mesh, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static void set(SoState state, SoNode node, PbMesh2D mesh) {
        ElementCalls.set(state, node, mesh, "mesh", PoMeshElement::setImpl1);
    }

    /**
     * Makes the 3D mesh the mesh of the traversal (see the package).
     *
     * @param state the traversal state
     * @param node the node that sets the mesh, or null
     * @param mesh the mesh, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static void set(SoState state, SoNode node, PbMesh3D mesh) {
        ElementCalls.set(state, node, mesh, "mesh", PoMeshElement::setImpl2);
    }

    /**
     * The mesh of the traversal, whatever its dimension.
     *
     * <p>See the package for the object returned, and how long a view of it works.
     *
     * @param state the traversal state
     * @return the mesh, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static PbMesh getMesh(SoState state) {
        return ElementCalls.valueOf(PbMesh.class, state, PoMeshElement::getMeshImpl);
    }

    /**
     * The mesh of the traversal, when it was set as a 1D mesh.
     *
     * <p>See the package for the object returned, and how long a view of it works.
     *
     * @param state the traversal state
     * @return the mesh, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static PbMesh1D getMesh1D(SoState state) {
        return ElementCalls.valueOf(PbMesh1D.class, state, PoMeshElement::getMesh1DImpl);
    }

    /**
     * The mesh of the traversal, when it was set as a 2D mesh.
     *
     * <p>See the package for the object returned, and how long a view of it works.
     *
     * @param state the traversal state
     * @return the mesh, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static PbMesh2D getMesh2D(SoState state) {
        return ElementCalls.valueOf(PbMesh2D.class, state, PoMeshElement::getMesh2DImpl);
    }

    /**
     * The mesh of the traversal, when it was set as a 3D mesh.
     *
     * <p>See the package for the object returned, and how long a view of it works.
     *
     * @param state the traversal state
     * @return the mesh, or null
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the state's traversal is over, or an object given has been disposed
     * @throws IllegalArgumentException when an override that the call runs throws (see the package)
     */
    public static PbMesh3D getMesh3D(SoState state) {
        return ElementCalls.valueOf(PbMesh3D.class, state, PoMeshElement::getMesh3DImpl);
    }

    /**
     * Gives the element its default value: the toolkit's behaviour of the element class.
     *
     * @param state the traversal state
     * @throws NullPointerException when state is null
     * @throws IllegalStateException when the element or the state has been disposed
     */
    @Override
    public void init(SoState state) {
        callWith(state, "state", PoMeshElement::initImpl);
    }

    private static native long ctorImpl();

    private static native String getClassTypeId();

    private static native int getClassStackIndexImpl();

    private static native void nativeDerivedClassInit();

    private static native int[] initCustomClass(long element, Object peer, boolean create, String typeName, int stackIndex,
            short key);

    private static native void initImpl(long element, long state);

    private static native void setImpl(long state, long node, long mesh);

    private static native void setImpl1(long state, long node, long mesh);

    private static native void setImpl2(long state, long node, long mesh);

    private static native long getMeshImpl(long state);

    private static native long getMesh1DImpl(long state);

    private static native long getMesh2DImpl(long state);

    private static native long getMesh3DImpl(long state);
}
