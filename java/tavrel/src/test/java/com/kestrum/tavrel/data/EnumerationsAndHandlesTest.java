package com.kestrum.tavrel.data;

import static com.kestrum.tavrel.testkit.Natives.callStatic;
import static com.kestrum.tavrel.testkit.Natives.handle;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kestrum.tavrel.testkit.Journal;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;

/** Enumeration getters, and the defined-value functor with its resource handle. */
class EnumerationsAndHandlesTest {
    static Stream<Arguments> getters() {
        return Stream.of(
                Arguments.of(PbMesh.DataBindings.PER_CELL, "getPERCELLNative", 0),
                Arguments.of(PbMesh.DataBindings.PER_NODE, "getPERNODENative", 1),
                Arguments.of(PbMesh2D.ExtrapolationMethods.USE_ADJACENT_DERIVS, "getUSEADJACENTDERIVSNative", 0),
                Arguments.of(PbMesh2D.ExtrapolationMethods.USE_ADJACENT_VALUES, "getUSEADJACENTVALUESNative", 1),
                Arguments.of(PbIndexedMesh2D.ElemOrientations.ORIENTATION_AS_IS, "getORIENTATIONASISNative", 0),
                Arguments.of(PbIndexedMesh2D.ElemOrientations.ORIENTATION_Z_POS, "getORIENTATIONZPOSNative", 1),
                Arguments.of(PbIndexedMesh2D.ElemOrientations.ORIENTATION_Z_NEG, "getORIENTATIONZNEGNative", 2));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("getters")
    void everyGetterGivesTheToolkitValueAndTheConstantCarriesIt(Enum<?> constant, String getter, int value)
            throws Exception {
        assertEquals(value, callStatic(constant.getDeclaringClass(), getter));
        assertEquals(value, constant.getDeclaringClass().getMethod("getValue").invoke(constant));
    }

    @Test
    void theOrientationReachesTheToolkitAsItsValue() {
        PbIndexedMesh2D mesh = new PbIndexedMesh2D(true);
        Journal.start();
        mesh.setElemOrientation(PbIndexedMesh2D.ElemOrientations.ORIENTATION_Z_NEG);
        List<String> lines = Journal.stop();
        assertTrue(lines.contains("PbIndexedMesh2D::setElemOrientation(2)"), lines.toString());
    }

    @Test
    void definedValueGivesZeroForEveryIndexAndIsFreedOnce() {
        PbDefinedValue value = new PbDefinedValue();
        for (int i : new int[] {0, 1, -5, Integer.MAX_VALUE}) {
            assertEquals(0f, value.getUndef(i));
        }
        Journal.start();
        value.dispose();
        value.dispose();
        List<String> lines = Journal.stop();
        assertEquals(List.of("PbDefinedValue::~PbDefinedValue()"), lines);
        assertThrows(IllegalStateException.class, () -> value.getUndef(0));
    }

    @Test
    void deletingHandleZeroDoesNothing() {
        Journal.start();
        new PbDefinedValue.NativeResourceHandle(0).run();
        assertEquals(List.of(), Journal.stop());
        assertTrue(handle(new PbDefinedValue()) != 0);
    }
}
