package com.kestrum.tavrel.demo;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoSeparator;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.elements.PoMeshElement;
import com.kestrum.tavrel.nodes.PoCellFilter;
import com.kestrum.tavrel.nodes.PoNode;
import com.kestrum.tavrel.nodes.PoRegularCartesianGrid2D;
import java.util.ArrayList;
import java.util.List;

/**
 * A Java element class taking part in a render: the traversal state makes its mesh elements of
 * a Java class that logs what the state asks of it.
 */
final class ElementSection implements Demo.Section {
    static final List<String> LOG = new ArrayList<>();

    /** The current mesh of a traversal, logging the state's calls; elements numbered as made. */
    static final class LoggedMeshElement extends PoMeshElement {
        private static int made;
        private final int number = ++made;

        @Override
        public void init(SoState state) {
            super.init(state);
            LOG.add("init       element #" + number);
        }

        @Override
        public void push(SoState state) {
            LOG.add("push       element #" + number + " (depth " + state.getDepth() + ") above #"
                    + ((LoggedMeshElement) getNextInStack()).number);
        }

        @Override
        public void pop(SoState state, SoElement previousTop) {
            LOG.add("pop        back to element #" + number + " from #" + ((LoggedMeshElement) previousTop).number
                    + ", whose mesh goes");
        }

        @Override
        public void captureThis(SoState state) {
            // (Reading an element here would capture it again.)
            LOG.add("captureThis element #" + number + ", read by a representation");
            super.captureThis(state);
        }
    }

    /** Opens the state's cache when rendered, so that elements read are captured. */
    static final class OpenCache extends PoNode {
        OpenCache() {
            super("DemoOpenCache");
        }

        @Override
        public void GLRender(SoGLRenderAction action) {
            action.getState().setCacheOpen(true);
        }
    }

    /** Counts the cells a representation draws. */
    static final class CountCells extends PoCellFilter {
        int asked;

        CountCells() {
            super("DemoCountCells");
        }

        @Override
        public boolean acceptCell(int cellIndex, float value) {
            asked++;
            return true;
        }
    }

    @Override
    public String title() {
        return "Java elements";
    }

    @Override
    public void run() {
        // One object registers the class; then the states make mesh elements of it.
        try (LoggedMeshElement registered = new LoggedMeshElement()) {
            SoAction.enableElement(registered.getTypeName(), registered.getStackIndex());
        }
        LoggedMeshElement.made = 0;
        try (SoGroup scene = new SoGroup(); OpenCache openCache = new OpenCache(); SoSeparator part = new SoSeparator();
                PoRegularCartesianGrid2D meshNode = new PoRegularCartesianGrid2D(); CountCells inside = new CountCells();
                PoMeshFilled filledInside = new PoMeshFilled(); CountCells after = new CountCells();
                PoMeshFilled filledAfter = new PoMeshFilled(); SoGLRenderAction render = new SoGLRenderAction()) {
            meshNode.setGeometry(4, 3, 0, 0, 3, 2, null);
            scene.addChild(openCache);
            scene.addChild(part);
            part.addChild(meshNode);  // sets the mesh element inside the separator
            part.addChild(inside);
            part.addChild(filledInside);
            scene.addChild(after);
            scene.addChild(filledAfter);  // after the separator: the mesh is gone
            render.apply(scene);
            System.out.println("Scene: cache opener, separator { " + meshNode.getTypeName() + ", "
                    + filledInside.getTypeName() + " }, " + filledAfter.getTypeName());
            System.out.println("What the toolkit asked of the Java mesh elements (" + LoggedMeshElement.class.getSimpleName()
                    + ", type " + PoMeshElement.getClassTypeName() + " stack " + PoMeshElement.getClassStackIndex() + "):");
            for (String line : LOG) {
                System.out.println("  " + line);
            }
            System.out.println("Cells drawn inside the separator: " + inside.asked + ", after it: " + after.asked);
        } finally {
            SoAction.enableElement(PoMeshElement.getClassTypeName(), PoMeshElement.getClassStackIndex());
        }
    }
}
