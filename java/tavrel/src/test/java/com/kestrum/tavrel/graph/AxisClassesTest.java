package com.kestrum.tavrel.graph;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import com.kestrum.tavrel.testkit.Journal;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import java.util.function.LongSupplier;
import java.util.function.Supplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** The enumerations, type names and catalogs of the axis classes. */
class AxisClassesTest {
    static Stream<Arguments> enumerations() {
        return Stream.of(
                arguments(PoAxis.Visibilities.class, "VISIBILITYOFF 0, VISIBILITYON 1, VISIBILITYDEPEND 2"),
                arguments(PoAxis.TextPaths.class, "PATHRIGHT 0, PATHLEFT 1, PATHUP 2, PATHDOWN 3, PATHDEPEND 4"),
                arguments(PoAxis.GradPositions.class, "GRADABOVE 0, GRADBELOW 1, GRADDEPEND 2"),
                arguments(PoAxis.MarginTypes.class, "RELMARGIN 0, FIXEDMARGIN 1"),
                arguments(PoAxis.TickPositions.class, "TICKGRADSIDE 0, TICKGRADOTHERSIDE 1, TICKACROSSAXIS 2"),
                arguments(PoAxis.TitlePositions.class, "TITLEMIDDLE 0, TITLEEND 1, TITLEDEPEND 2"),
                arguments(PoAxis.TickSubDefs.class, "NUMSUBTICK 0, PERIODMAINTICK 1"),
                arguments(PoAxis.AxisReverses.class, "AXISNOREVERSE 0, AXISREVERSE 1, AXISREVERSEDEPEND 2"),
                arguments(PoCartesianAxis.Types.class, "XY 0, XZ 1, YX 2, YZ 3, ZX 4, ZY 5"),
                arguments(PoLinearAxis.GradFits.class, "GRADFIT 0, GRADUNFIT 1"),
                arguments(PoLinearAxis.MultFactorPositions.class, "MULTFACTORSTART 0, MULTFACTOREND 1, MULTFACTOREXTR 2, MULTFACTORGRAD 3"),
                arguments(PoLogAxis.DecadeListDefs.class, "DECADELISTAUTO 0, DECADELISTNONAUTO 1"),
                arguments(PoLogAxis.TenPowGradReps.class, "TENPOWERPOW10 0, TENPOWERDECIMAL 1, TENPOWERAUTO 2"),
                arguments(PoLogAxis.DecadeReps.class, "DECADENONE 0, DECADEASTENPOWER 1, DECADEDECIMAL 2, DECADEDIGIT 3, DECADEAUTO 4"),
                arguments(PoLogAxis.MultFactorPositions.class, "MULTFACTORSTART 0, MULTFACTOREND 1, MULTFACTOREXTR 2, MULTFACTORGRAD 3"),
                arguments(PoPolarAxis.MultFactorPositions.class, "MULTFACTORSTART 0, MULTFACTOREND 1, MULTFACTOREXTR 2, MULTFACTORGRAD 3"),
                arguments(PoPolarLinAxis.GradFits.class, "GRADFIT 0, GRADUNFIT 1"),
                arguments(PoPolarLogAxis.DecadeListDefs.class, "DECADELISTAUTO 0, DECADELISTNONAUTO 1"),
                arguments(PoPolarLogAxis.TenPowGradReps.class, "TENPOWERPOW10 0, TENPOWERDECIMAL 1, TENPOWERAUTO 2"),
                arguments(PoPolarLogAxis.DecadeReps.class, "DECADENONE 0, DECADEASTENPOWER 1, DECADEDECIMAL 2, DECADEDIGIT 3, DECADEAUTO 4"),
                arguments(PoAngularAxis.GradFits.class, "GRADFIT 0, GRADUNFIT 1"),
                arguments(PoTimeAxis.Languages.class, "ENGLISH 0, FRANCAIS 1, DEUTSCH 2, ESPANOL 3"),
                arguments(PoTimeAxis.GradFits.class, "GRADFIT 0, GRADUNFIT 1"),
                arguments(PoTimeAxis.Types.class, "X 0, Y 1"),
                arguments(PoAutoCubeAxis.AxisTypes.class, "LINEAR 0, LOGARITHMIC 1, GENERALIZED 2"),
                arguments(PoGroup2Axis.AxisTypes.class, "LINEAR 0, LOGARITHMIC 1"),
                arguments(PoGroup3Axis3.AxisTypes.class, "LINEAR 0, LOGARITHMIC 1"),
                arguments(PoGroup3Axis3.AxisNames.class, "XAXIS 0, YAXIS 1, ZAXIS 2"),
                arguments(PoGroup4Axis.AxisTypes.class, "LINEAR 0, LOGARITHMIC 1"),
                arguments(PoGroup6Axis3.AxisTypes.class, "LINEAR 0, LOGARITHMIC 1"));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("enumerations")
    void everyConstantHasItsGetterAndValue(Class<? extends Enum<?>> enumeration, String table) throws Exception {
        new GraphClassesTest().everyConstantHasItsGetterAndValue(enumeration, table);
    }

    /** An axis class: its type name and catalog getters. */
    private record Base(String name, Supplier<String> typeName, LongSupplier catalog) {
        @Override
        public String toString() {
            return name;
        }
    }

    static Stream<Base> classes() {
        return Stream.of(
                new Base("PoAxis", PoAxis::getClassTypeName, PoAxis::getClassNodekitCatalog),
                new Base("PoCartesianAxis", PoCartesianAxis::getClassTypeName, PoCartesianAxis::getClassNodekitCatalog),
                new Base("PoLinearAxis", PoLinearAxis::getClassTypeName, PoLinearAxis::getClassNodekitCatalog),
                new Base("PoLogAxis", PoLogAxis::getClassTypeName, PoLogAxis::getClassNodekitCatalog),
                new Base("PoGenAxis", PoGenAxis::getClassTypeName, PoGenAxis::getClassNodekitCatalog),
                new Base("PoPolarAxis", PoPolarAxis::getClassTypeName, PoPolarAxis::getClassNodekitCatalog),
                new Base("PoPolarLinAxis", PoPolarLinAxis::getClassTypeName, PoPolarLinAxis::getClassNodekitCatalog),
                new Base("PoPolarLogAxis", PoPolarLogAxis::getClassTypeName, PoPolarLogAxis::getClassNodekitCatalog),
                new Base("PoAngularAxis", PoAngularAxis::getClassTypeName, PoAngularAxis::getClassNodekitCatalog),
                new Base("PoTimeAxis", PoTimeAxis::getClassTypeName, PoTimeAxis::getClassNodekitCatalog),
                new Base("PoAutoCubeAxis", PoAutoCubeAxis::getClassTypeName, PoAutoCubeAxis::getClassNodekitCatalog),
                new Base("PoGroup2Axis", PoGroup2Axis::getClassTypeName, PoGroup2Axis::getClassNodekitCatalog),
                new Base("PoGroup3Axis3", PoGroup3Axis3::getClassTypeName, PoGroup3Axis3::getClassNodekitCatalog),
                new Base("PoGroup4Axis", PoGroup4Axis::getClassTypeName, PoGroup4Axis::getClassNodekitCatalog),
                new Base("PoGroup6Axis3", PoGroup6Axis3::getClassTypeName, PoGroup6Axis3::getClassNodekitCatalog),
                new Base("PoCoordinateSystemAxis", PoCoordinateSystemAxis::getClassTypeName, PoCoordinateSystemAxis::getClassNodekitCatalog));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("classes")
    void theTypeNameIsReadFromTheClassAndTheCatalogAskedOfIt(Base base) {
        Journal.start();
        String name = base.typeName().get();
        long catalog = base.catalog().getAsLong();
        assertEquals(List.of(base.name() + "::getClassNodekitCatalog()"), Journal.stop());
        assertEquals(base.name(), name);
        assertNotEquals(0, catalog);
    }

    @Test
    void eachClassHasItsOwnCatalog() {
        Set<Long> catalogs = new HashSet<>();
        classes().forEach(b -> catalogs.add(b.catalog().getAsLong()));
        assertEquals(16, catalogs.size());
    }
}
