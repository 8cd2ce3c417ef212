package com.kestrum.tavrel.graph;

import com.kestrum.tavrel.internal.JavaViews;
import com.kestrum.tavrel.testkit.Graphs;
import com.kestrum.tavrel.testkit.Natives;

/** Graph nodes for the tests: a rectangle made by the toolkit, a node that builds nothing. */
final class GraphNodes {
    private GraphNodes() {}

    /** A new rectangle whose only reference is held by the Java object returned. */
    static PoBase rectangle() {
        return PoBase.createInstance("PoRectangle");
    }

    /** A new graph node whose class does not override rebuild. */
    static PoBase plain() {
        return JavaViews.find(PoBase.class, Graphs.newPlainGraphNode(), null);
    }

    /** The rectangle's outline from its last build, three floats a point. */
    static float[] outline(PoBase rectangle) {
        return Graphs.outline(Natives.handle(rectangle));
    }

    static int builds(PoBase node) {
        return Graphs.buildCount(Natives.handle(node));
    }
}
