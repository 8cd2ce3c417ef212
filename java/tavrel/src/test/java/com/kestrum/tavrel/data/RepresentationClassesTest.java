package com.kestrum.tavrel.data;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.kestrum.corvel.nodekits.SoBaseKit;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Representations;
import com.kestrum.tavrel.testkit.Toolkit;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.util.List;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;

/** The class-level methods of every representation class: type names, catalogs, constructors. */
class RepresentationClassesTest {
    static final List<Class<? extends SoBaseKit>> CLASSES = List.of(
            PoDessvane.class, PoMesh.class, PoMesh2D.class, PoMesh3D.class,
            PoMeshContouring.class, PoMeshCrossContour.class, PoMeshCrossSection.class, PoMeshFilled.class,
            PoMeshLevelSurf.class, PoMeshLimit.class, PoMeshLines.class, PoMeshSides.class,
            PoMeshSkeleton.class, PoMeshSkin.class,
            PoCellEdges.class, PoCellFacets.class, PoCellIndices.class, PoCellShape.class,
            PoMesh2DVec.class, PoMesh3DVec.class, PoMesh3DVecCrossSection.class, PoMesh3DVecGridCrossSection.class,
            PoBaseStreamLine.class, PoStreamLine.class, PoStreamSurface.class, PoStreamParticleMotion.class,
            PoStreamLineMotion.class, PoStreamPointMotion.class, PoStreamSphereMotion.class,
            PoStreamTadpoleMotion.class, PoMeshProbePoint.class);

    static Stream<Class<? extends SoBaseKit>> classes() {
        return CLASSES.stream();
    }

    static Stream<Class<? extends SoBaseKit>> concreteClasses() {
        return CLASSES.stream().filter(c -> !Modifier.isAbstract(c.getModifiers()));
    }

    private static Object callStatic(Class<?> c, String name) throws Exception {
        Method m = c.getDeclaredMethod(name);
        m.setAccessible(true);
        return m.invoke(null);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void typeNameAndCatalogAreTheToolkitClasss(Class<?> c) throws Exception {
        String name = c.getSimpleName();
        Journal.start();
        Object typeName = callStatic(c, "getClassTypeId");
        long catalog = (Long) callStatic(c, "getClassNodekitCatalogImpl");
        List<String> calls = Journal.stop();

        assertEquals(name, typeName);
        assertEquals(List.of(name + "::getClassTypeId()", name + "::getClassNodekitCatalog()"), calls);
        assertNotEquals(0L, catalog);
        assertEquals(name, Representations.catalogOwner(catalog));
        assertEquals(typeName, c.getMethod("getClassTypeName").invoke(null));
        assertEquals(catalog, c.getMethod("getClassNodekitCatalog").invoke(null));

        // Natives of a class run on handles of its Java subclasses: the toolkit classes must
        // derive from each other as the Java classes do.
        Class<?> parent = c.getSuperclass();
        assertEquals(parent == SoBaseKit.class ? "BaseKit" : parent.getSimpleName(), Toolkit.parentTypeName(name));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("concreteClasses")
    void constructorFunctionMakesANodeOfTheClass(Class<? extends SoNode> c) throws Exception {
        String name = c.getSimpleName();
        Journal.start();
        SoNode node = c.getConstructor().newInstance();
        List<String> ownCalls = Journal.stop().stream().filter(l -> l.startsWith(name + "::"))
                .collect(Collectors.toList());
        try {
            assertEquals(List.of(name + "::" + name + "()"), ownCalls);
            assertEquals(name, node.getTypeName());
            assertEquals(1, node.getRefCount(), "the Java object holds the only reference");
        } finally {
            node.dispose();
        }
    }

    @Test
    void abstractClassesHaveNoConstructorFunction() {
        List<Class<?>> abstractClasses = CLASSES.stream().filter(c -> Modifier.isAbstract(c.getModifiers()))
                .collect(Collectors.toList());
        assertEquals(List.of(PoDessvane.class, PoMesh.class, PoMesh2D.class, PoMesh3D.class,
                PoStreamParticleMotion.class), abstractClasses);
        for (Class<?> c : abstractClasses) {
            assertThrows(NoSuchMethodException.class, () -> c.getDeclaredMethod("ctorImpl"), c.getSimpleName());
        }
    }
}
