package com.kestrum.tavrel.nodes;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.testkit.Journal;
import com.kestrum.tavrel.testkit.Toolkit;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.util.Arrays;
import java.util.List;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** The class-level methods of the attribute property nodes: type names, constructors, enumerations. */
class PropertyNodeClassesTest {
    /** Each class with the toolkit class its toolkit class derives from. */
    static Stream<Arguments> classes() {
        return Stream.of(
                Arguments.of(PoBevelEdge.class, "PoNode"),
                Arguments.of(PoDataMapping.class, "PoNode"),
                Arguments.of(PoLinearDataMapping.class, "PoDataMapping"),
                Arguments.of(PoNonLinearDataMapping.class, "PoDataMapping"),
                Arguments.of(PoNonLinearDataMapping2.class, "PoDataMapping"),
                Arguments.of(PoDateFormatMapping.class, "PoNode"),
                Arguments.of(PoDomain.class, "PoNode"),
                Arguments.of(PoIsovaluesList.class, "PoNode"),
                Arguments.of(PoLabelHints.class, "PoNode"),
                Arguments.of(PoMesh1DFilter.class, "PoNode"),
                Arguments.of(PoMesh1DHints.class, "PoNode"),
                Arguments.of(PoMiscTextAttr.class, "PoNode"),
                Arguments.of(PoNumericDisplayFormat.class, "PoNode"),
                Arguments.of(PoCoordinateListFilter.class, "PoMesh1DFilter"),
                Arguments.of(PoIndexListFilter.class, "PoMesh1DFilter"),
                Arguments.of(PoIntervalCellFilter.class, "PoCellFilter"),
                Arguments.of(PoPeriodFilter.class, "PoMesh1DFilter"),
                Arguments.of(PoPeriodIndexFilter.class, "PoMesh1DFilter"),
                Arguments.of(PoProfile.class, "PoNode"),
                Arguments.of(PoCircularProfile.class, "PoProfile"),
                Arguments.of(PoEllipticProfile.class, "PoProfile"),
                Arguments.of(PoSquareProfile.class, "PoProfile"),
                Arguments.of(PoProfileCoordinate2.class, "PoProfile"));
    }

    static Stream<Arguments> concreteClasses() {
        return classes().filter(a -> !Modifier.isAbstract(((Class<?>) a.get()[0]).getModifiers()));
    }

    /** Each enumeration with its constants in the toolkit's order: the value of each is its index. */
    static Stream<Arguments> enumerations() {
        return Stream.of(
                Arguments.of(PoBevelEdge.RadiusFlags.class, "ABSOLUTERADIUS PERCENTAGERADIUS"),
                Arguments.of(PoNonLinearDataMapping2.Types.class, "NONLINEARPERLEVEL LINEARPERLEVEL"),
                Arguments.of(PoDomain.TransformTypes.class,
                        "TRANSFORM01 SCALEXFIXED SCALEYFIXED SCALEZFIXED SCALEMAXXYZFIXED"),
                Arguments.of(PoDomain.BoundingBoxTypes.class, "ASIS MINBOUNDINGCUBE MAXBOUNDEDCUBE"),
                Arguments.of(PoLabelHints.LabelPaths.class, "PATHRIGHT PATHLEFT PATHUP PATHDOWN PATHDEPEND"),
                Arguments.of(PoLabelHints.Justifications.class, "LEFT CENTER RIGHT DEPEND"),
                Arguments.of(PoMesh1DHints.GeomInterpretations.class,
                        "ASIS SMOOTH STAIRSX STAIRSY HISTOX HISTOY STAIRS2X STAIRS2Y"),
                Arguments.of(PoMiscTextAttr.LineLengths.class, "LINELENGTHMAX LINELENGTHMIN"),
                Arguments.of(PoNumericDisplayFormat.FormatTypes.class, "AUTOFORMAT FLOATFORMAT INTEGERFORMAT"),
                Arguments.of(PoCoordinateListFilter.AxisType.class, "X Y"),
                Arguments.of(PoPeriodFilter.AxisType.class, "X Y"));
    }

    private static Object callStatic(Class<?> c, String name) throws Exception {
        Method m = c.getDeclaredMethod(name);
        m.setAccessible(true);
        return m.invoke(null);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void typeNameIsTheToolkitClasssAndItDerivesAsTheToolkitSays(Class<?> c, String toolkitParent)
            throws Exception {
        String name = c.getSimpleName();
        Journal.start();
        Object typeName = callStatic(c, "getClassTypeId");
        assertEquals(List.of(name + "::getClassTypeId()"), Journal.stop());
        assertEquals(name, typeName);
        assertEquals(name, c.getMethod("getClassTypeName").invoke(null));
        assertEquals(toolkitParent, Toolkit.parentTypeName(name));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("concreteClasses")
    void constructorReachesTheToolkitConstructorOfItsClass(Class<? extends SoNode> c, String toolkitParent)
            throws Exception {
        String name = c.getSimpleName();
        Journal.start();
        SoNode node = c.getConstructor().newInstance();
        List<String> calls = Journal.stop().stream().filter(l -> l.startsWith("Po"))
                .collect(Collectors.toList());
        try {
            assertEquals(List.of(name + "::" + name + "()"), calls, "one toolkit constructor, no other call");
            assertEquals(name, node.getTypeName());
            assertEquals(1, node.getRefCount(), "the Java object holds the one reference");
        } finally {
            node.dispose();
        }
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("enumerations")
    void enumerationValuesAreTheToolkits(Class<? extends Enum<?>> e, String names) throws Exception {
        Enum<?>[] constants = e.getEnumConstants();
        assertEquals(Arrays.asList(names.split(" ")),
                Arrays.stream(constants).map(Enum::name).collect(Collectors.toList()));
        Method getValue = e.getMethod("getValue");
        for (Enum<?> constant : constants) {
            assertEquals(constant.ordinal(), getValue.invoke(constant), constant.name());
        }
    }
}
