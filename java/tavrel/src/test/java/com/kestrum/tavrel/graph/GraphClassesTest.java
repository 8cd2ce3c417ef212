package com.kestrum.tavrel.graph;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.kestrum.tavrel.testkit.Journal;
import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.function.LongSupplier;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** The enumerations of the graph classes, and the type names and catalogs of the node bases. */
class GraphClassesTest {
    static Stream<Arguments> enumerations() {
        return Stream.of(
                arguments(PoBase.UpdateMethodTypes.class, "UPDATEMETHODIMMEDIATE 0, UPDATEMETHODONACTION 1"),
                arguments(PoBase.NodeWriteFormats.class, "FOLDNODEWRITEFORMAT 0, UNFOLDNODEWRITEFORMAT 1"),
                arguments(PoBase.TextTypes.class, "SOTEXT3 0, SOANNOTEXT3 1"),
                arguments(PoChart.ColorBindings.class, "INHERITED 0, PERVERTEX 1, PERPART 2"),
                arguments(PbDomain.TransformTypes.class,
                        "TRANSFORM01 0, SCALEXFIXED 1, SCALEYFIXED 2, SCALEZFIXED 3, SCALEMAXXYZFIXED 4"),
                arguments(PbDomain.BoundingBoxTypes.class, "ASIS 0, MINBOUNDINGCUBE 1, MAXBOUNDEDCUBE 2"),
                arguments(PbMiscTextAttr.LineLengths.class, "LINELENGTHMAX 0, LINELENGTHMIN 1"),
                arguments(PbNonLinearDataMapping2.Types.class, "NONLINEARPERLEVEL 0, LINEARPERLEVEL 1"),
                arguments(PbNumericDisplayFormat.FormatTypes.class, "AUTOFORMAT 0, FLOATFORMAT 1, INTEGERFORMAT 2"));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("enumerations")
    void everyConstantHasItsGetterAndValue(Class<? extends Enum<?>> enumeration, String table) throws Exception {
        Map<String, Integer> expected = new LinkedHashMap<>();
        for (String entry : table.split(", ")) {
            String[] nameAndValue = entry.split(" ");
            expected.put(nameAndValue[0], Integer.valueOf(nameAndValue[1]));
        }
        List<String> constants = new ArrayList<>();
        Method getValue = enumeration.getMethod("getValue");
        for (Enum<?> constant : enumeration.getEnumConstants()) {
            constants.add(constant.name());
            Method getter = enumeration.getDeclaredMethod("get" + constant.name() + "Native");
            getter.setAccessible(true);
            Integer value = expected.get(constant.name());
            assertEquals(value, getter.invoke(null), constant.name());
            assertEquals(value, getValue.invoke(constant), constant.name());
        }
        assertEquals(new ArrayList<>(expected.keySet()), constants);
    }

    /** A node base: its type name and catalog getters. */
    private record Base(String name, Supplier<String> typeName, LongSupplier catalog) {
        @Override
        public String toString() {
            return name;
        }
    }

    static Stream<Base> bases() {
        return Stream.of(
                new Base("PoBase", PoBase::getClassTypeName, PoBase::getClassNodekitCatalog),
                new Base("PoQuorvex", PoQuorvex::getClassTypeName, PoQuorvex::getClassNodekitCatalog),
                new Base("PoChart", PoChart::getClassTypeName, PoChart::getClassNodekitCatalog),
                new Base("PoBaseAxis", PoBaseAxis::getClassTypeName, PoBaseAxis::getClassNodekitCatalog));
    }

    /** The type name comes from the class's data member: no toolkit function is called for it. */
    @ParameterizedTest(name = "{0}")
    @MethodSource("bases")
    void theTypeNameIsReadFromTheClassAndTheCatalogAskedOfIt(Base base) {
        Journal.start();
        String name = base.typeName().get();
        long catalog = base.catalog().getAsLong();
        assertEquals(List.of(base.name() + "::getClassNodekitCatalog()"), Journal.stop());
        assertEquals(base.name(), name);
        assertNotEquals(0, catalog);
        assertEquals(catalog, base.catalog().getAsLong());
    }

    @Test
    void eachBaseHasItsOwnCatalog() {
        Set<Long> catalogs = new HashSet<>();
        bases().forEach(b -> catalogs.add(b.catalog().getAsLong()));
        assertEquals(4, catalogs.size());
    }
}
