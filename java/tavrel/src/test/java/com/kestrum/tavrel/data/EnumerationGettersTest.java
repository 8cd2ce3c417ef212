package com.kestrum.tavrel.data;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.params.provider.Arguments.arguments;

import java.lang.reflect.Method;
import java.util.ArrayList;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.stream.Stream;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** Every enumeration of the representation classes carries the toolkit's values. */
class EnumerationGettersTest {
    private static final String ELIMINATION = "NONE 0, TOOSMALL 1, TOOLONG 2, TOOSMALLORLONG 3";
    private static final String BODY_SHAPES = "NOBODY 0, LINE 1, CYLINDER 2";
    private static final String BODY_LENGTH = "CONSTANTLENGTH 0, RELATIVELENGTH 1";
    private static final String BODY_RADIUS = "CONSTANTRADIUS 0, RELATIVERADIUS 1";
    private static final String ARROW_SHAPES = "NOSHAPE 0, POINT 1, CHEVRON 2, TRIANGLE 3, RECTANGLE 4, CONE 5, BOX 6, "
            + "SPHERE 7, INDIRECTCHEVRON 8, INDIRECTTRIANGLE 9, INDIRECTCONE 10";
    private static final String ARROW_HEIGHT = "CONSTANTHEIGHT 0, RELATIVEHEIGHT 1";
    private static final String ARROW_COLORING = "CONSTANTCOLOR 0, MODULEMAPPINGCOLOR 1, SCALARMAPPINGCOLOR 2";

    static Stream<Arguments> enumerations() {
        return Stream.of(
                arguments(PoMesh.ColoringTypes.class,
                        "COLORINHERITED 0, COLORAVERAGE 1, COLORMAPPING 2, COLORCONTOURING 3, COLORTEXTURECONTOURING 4"),
                arguments(PoMeshContouring.AnnotPaths.class, "TANGENTIALPATH 0, HORIZONTALPATH 1, VERTICALPATH 2"),
                arguments(PoMeshContouring.AnnotCrossStatusType.class,
                        "CROSSCONTOUR 0, CROSSMINORCONTOUR 1, DONTCROSSCONTOUR 2"),
                arguments(PoMeshCrossSection.CrossSectionMethods.class, "DEFAULT 0, ISOSURFACE 1, INTERSECTION 2"),
                arguments(PoMeshLevelSurf.SurfOrientations.class, "ORIENTEDTOMIN 0, ORIENTEDTOMAX 1"),
                arguments(PoMeshSides.ThresholdTypes.class, "THRESHOLDZMIN 0, THRESHOLDZMAX 1, THRESHOLDVALUE 2"),
                arguments(PoMesh2DVec.EliminationStatusType.class, ELIMINATION),
                arguments(PoMesh2DVec.BodyShapes.class, BODY_SHAPES),
                arguments(PoMesh2DVec.BodyLengthTypes.class, BODY_LENGTH),
                arguments(PoMesh2DVec.BodyRadiusTypes.class, BODY_RADIUS),
                arguments(PoMesh2DVec.ArrowShapes.class, ARROW_SHAPES),
                arguments(PoMesh2DVec.ArrowHeightTypes.class, ARROW_HEIGHT),
                arguments(PoMesh2DVec.ArrowColoringTypes.class, ARROW_COLORING),
                arguments(PoMesh3DVec.EliminationStatusType.class, ELIMINATION),
                arguments(PoMesh3DVec.BodyShapes.class, BODY_SHAPES),
                arguments(PoMesh3DVec.BodyLengthTypes.class, BODY_LENGTH),
                arguments(PoMesh3DVec.BodyRadiusTypes.class, BODY_RADIUS),
                arguments(PoMesh3DVec.ArrowShapes.class, ARROW_SHAPES),
                arguments(PoMesh3DVec.ArrowHeightTypes.class, ARROW_HEIGHT),
                arguments(PoMesh3DVec.ArrowColoringTypes.class, ARROW_COLORING),
                arguments(PoMesh3DVecCrossSection.ProjectionTypes.class,
                        "NOPROJECTION 0, PROJECTIONONPLANE 1, PROJECTIONONNORMAL 2"),
                arguments(PoBaseStreamLine.IntegrationDirections.class, "FORWARD 0, BACKWARD 1"));
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
}
