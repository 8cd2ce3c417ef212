package com.kestrum.tavrel.soak;

import com.kestrum.corvel.SbBox3f;
import com.kestrum.corvel.SbVec3f;
import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.corvel.nodes.SoGroup;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.corvel.nodes.SoSeparator;
import com.kestrum.tavrel.data.PbRegularCartesianGrid2D;
import com.kestrum.tavrel.data.PoMeshFilled;
import com.kestrum.tavrel.elements.PoBevelEdgeElement;
import com.kestrum.tavrel.elements.PoCellFilterElement;
import com.kestrum.tavrel.elements.PoDataMappingElement;
import com.kestrum.tavrel.elements.PoDateFormatMappingElement;
import com.kestrum.tavrel.elements.PoDomainElement;
import com.kestrum.tavrel.elements.PoIsovaluesListElement;
import com.kestrum.tavrel.elements.PoLabelHintsElement;
import com.kestrum.tavrel.elements.PoMesh1DFilterElement;
import com.kestrum.tavrel.elements.PoMesh1DHintsElement;
import com.kestrum.tavrel.elements.PoMeshElement;
import com.kestrum.tavrel.elements.PoMiscTextAttrElement;
import com.kestrum.tavrel.elements.PoNumericDisplayFormatElement;
import com.kestrum.tavrel.elements.PoProfileElement;
import com.kestrum.tavrel.graph.PbDateFormatMapping;
import com.kestrum.tavrel.graph.PbDomain;
import com.kestrum.tavrel.graph.PbIsovaluesList;
import com.kestrum.tavrel.graph.PbLinearDataMapping;
import com.kestrum.tavrel.graph.PbMiscTextAttr;
import com.kestrum.tavrel.graph.PbNumericDisplayFormat;
import com.kestrum.tavrel.nodes.PoBevelEdge;
import com.kestrum.tavrel.nodes.PoDateFormatMapping;
import com.kestrum.tavrel.nodes.PoDomain;
import com.kestrum.tavrel.nodes.PoIndexListFilter;
import com.kestrum.tavrel.nodes.PoIntervalCellFilter;
import com.kestrum.tavrel.nodes.PoIsovaluesList;
import com.kestrum.tavrel.nodes.PoLabelHints;
import com.kestrum.tavrel.nodes.PoLinearDataMapping;
import com.kestrum.tavrel.nodes.PoMesh1DHints;
import com.kestrum.tavrel.nodes.PoMiscTextAttr;
import com.kestrum.tavrel.nodes.PoNode;
import com.kestrum.tavrel.nodes.PoNumericDisplayFormat;
import com.kestrum.tavrel.nodes.PoRegularCartesianGrid2D;
import com.kestrum.tavrel.nodes.PoSquareProfile;
import com.kestrum.tavrel.soak.DataPaths.Loop;
import java.nio.FloatBuffer;
import java.util.List;
import java.util.function.BiConsumer;

/**
 * The traversal-state elements in the soak: the thirteen element classes, each with a Java
 * subclass whose type every state makes while the path runs, set natively by property nodes and
 * from Java by a Java node's override, and read inside that override.
 */
final class ElementPaths {
    private ElementPaths() {}

    /** The calls the states made on the Java elements (init and push), all classes together. */
    static int calls;

    static final class SoakBevelEdge extends PoBevelEdgeElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakCellFilter extends PoCellFilterElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakDataMapping extends PoDataMappingElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakDateFormatMapping extends PoDateFormatMappingElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakDomain extends PoDomainElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakIsovaluesList extends PoIsovaluesListElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakLabelHints extends PoLabelHintsElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakMesh1DFilter extends PoMesh1DFilterElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakMesh1DHints extends PoMesh1DHintsElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakMesh extends PoMeshElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakMiscTextAttr extends PoMiscTextAttrElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakNumericDisplayFormat extends PoNumericDisplayFormatElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    static final class SoakProfile extends PoProfileElement {
        @Override
        public void init(SoState state) {
            calls++;
            super.init(state);
        }

        @Override
        public void push(SoState state) {
            calls++;
        }
    }

    /** A Java element class with the type name and stack index of its toolkit class, to enable one or the other. */
    private record ElementClass(SoElement first, String toolkitType, int stackIndex) {}

    /** Runs its body with the traversal's state when a render or callback traversal reaches it. */
    static final class StateReader extends PoNode {
        private final BiConsumer<SoState, SoNode> body;
        int reads;

        StateReader(BiConsumer<SoState, SoNode> body) {
            super("SoakStateReader");
            this.body = body;
        }

        @Override
        public void GLRender(SoGLRenderAction action) {
            reads++;
            body.accept(action.getState(), this);
        }

        @Override
        public void callback(SoCallbackAction action) {
            reads++;
            body.accept(action.getState(), this);
        }
    }

    /**
     * The thirteen elements with Java element types enabled: in a separator, a property node of
     * each kind and a mesh node set them natively; a Java node after them reads every element
     * that has a getter (the attribute objects, nodes, meshes, profile coordinates and direct
     * buffers it gets are read there and dropped), sets all thirteen from Java to objects made
     * once, and reads them again; a representation after it draws with them. Render and
     * callback traversals in turn. The scene is made once; the states make the Java elements
     * anew in every traversal.
     */
    static Loop javaElements() {
        List<ElementClass> classes = List.of(
                new ElementClass(new SoakBevelEdge(), PoBevelEdgeElement.getClassTypeName(),
                        PoBevelEdgeElement.getClassStackIndex()),
                new ElementClass(new SoakCellFilter(), PoCellFilterElement.getClassTypeName(),
                        PoCellFilterElement.getClassStackIndex()),
                new ElementClass(new SoakDataMapping(), PoDataMappingElement.getClassTypeName(),
                        PoDataMappingElement.getClassStackIndex()),
                new ElementClass(new SoakDateFormatMapping(), PoDateFormatMappingElement.getClassTypeName(),
                        PoDateFormatMappingElement.getClassStackIndex()),
                new ElementClass(new SoakDomain(), PoDomainElement.getClassTypeName(),
                        PoDomainElement.getClassStackIndex()),
                new ElementClass(new SoakIsovaluesList(), PoIsovaluesListElement.getClassTypeName(),
                        PoIsovaluesListElement.getClassStackIndex()),
                new ElementClass(new SoakLabelHints(), PoLabelHintsElement.getClassTypeName(),
                        PoLabelHintsElement.getClassStackIndex()),
                new ElementClass(new SoakMesh1DFilter(), PoMesh1DFilterElement.getClassTypeName(),
                        PoMesh1DFilterElement.getClassStackIndex()),
                new ElementClass(new SoakMesh1DHints(), PoMesh1DHintsElement.getClassTypeName(),
                        PoMesh1DHintsElement.getClassStackIndex()),
                new ElementClass(new SoakMesh(), PoMeshElement.getClassTypeName(), PoMeshElement.getClassStackIndex()),
                new ElementClass(new SoakMiscTextAttr(), PoMiscTextAttrElement.getClassTypeName(),
                        PoMiscTextAttrElement.getClassStackIndex()),
                new ElementClass(new SoakNumericDisplayFormat(), PoNumericDisplayFormatElement.getClassTypeName(),
                        PoNumericDisplayFormatElement.getClassStackIndex()),
                new ElementClass(new SoakProfile(), PoProfileElement.getClassTypeName(),
                        PoProfileElement.getClassStackIndex()));
        for (ElementClass c : classes) {
            try (SoElement first = c.first()) { // the first object registers the class's type
                DataPaths.check(SoAction.enableElement(first.getTypeName(), first.getStackIndex()), "element enabled");
            }
        }

        // What the Java node sets, made once (attribute objects and meshes are never freed).
        PbLinearDataMapping mapping = new PbLinearDataMapping();
        PbIsovaluesList isovalues = new PbIsovaluesList(0, 1, 3);
        PbDomain domain = new PbDomain(0, 0, 0, 2, 4, 8, PbDomain.BoundingBoxTypes.ASIS);
        PbDateFormatMapping dates = new PbDateFormatMapping("2024-01-01", "2024-01-02", 0, 10, "%d/%m");
        PbMiscTextAttr text = new PbMiscTextAttr();
        text.setFontName("Serif");
        PbNumericDisplayFormat format = new PbNumericDisplayFormat(PbNumericDisplayFormat.FormatTypes.FLOATFORMAT, 7, 2);
        PbRegularCartesianGrid2D mesh = new PbRegularCartesianGrid2D(3, 3, 0, 0, 1, 1, true);

        PoLinearDataMapping mappingNode = new PoLinearDataMapping();
        PoIsovaluesList isovaluesNode = new PoIsovaluesList();
        isovaluesNode.setRegularIsoList(0f, 4f, 5);
        PoDomain domainNode = new PoDomain();
        domainNode.setValues(new SbVec3f(0, 0, 0), new SbVec3f(1, 1, 1), PoDomain.BoundingBoxTypes.ASIS);
        PoDateFormatMapping datesNode = new PoDateFormatMapping();
        PoMiscTextAttr textNode = new PoMiscTextAttr();
        PoNumericDisplayFormat formatNode = new PoNumericDisplayFormat();
        PoIntervalCellFilter cellFilter = new PoIntervalCellFilter();
        PoIndexListFilter pointFilter = new PoIndexListFilter();
        PoMesh1DHints hints = new PoMesh1DHints();
        PoLabelHints labelHints = new PoLabelHints();
        PoBevelEdge bevel = new PoBevelEdge();
        PoSquareProfile profile = new PoSquareProfile();
        PoRegularCartesianGrid2D meshNode = new PoRegularCartesianGrid2D();
        meshNode.setGeometry(5, 5, 0, 0, 1, 1, null);
        List<SoNode> propertyNodes = List.of(mappingNode, isovaluesNode, domainNode, datesNode, textNode, formatNode,
                cellFilter, pointFilter, hints, labelHints, bevel, profile, meshNode);

        StateReader reader = new StateReader((state, self) -> {
            // Set natively by the property nodes before this node.
            DataPaths.check(PoDataMappingElement.get(state).getHLSColor(1f).lightness() == 1f, "mapping read");
            DataPaths.check(PoIsovaluesListElement.get(state).getIsoList().values().length == 5, "isovalues read");
            DataPaths.check(PoDomainElement.get(state).get3DDomain().equals(new SbBox3f(0, 0, 0, 1, 1, 1)), "domain read");
            DataPaths.check(PoDateFormatMappingElement.get(state).getCoordinate("2000-01-03") == 2f, "dates read");
            DataPaths.check(PoMiscTextAttrElement.get(state).getFontName() != null, "text attributes read");
            DataPaths.check(PoNumericDisplayFormatElement.get(state) != null, "format read");
            DataPaths.check(same(PoCellFilterElement.get(state), cellFilter), "cell filter read");
            DataPaths.check(same(PoMesh1DFilterElement.get(state), pointFilter), "1D filter read");
            DataPaths.check(PoMesh1DHintsElement.get(state) == PoMesh1DHintsElement.getDefault(), "hints read");
            DataPaths.check(PoMeshElement.getMesh2D(state).getNumNodes() == 25, "mesh read");
            DataPaths.check(same(PoProfileElement.get(state), profile), "profile read");
            float[] coordinates = PoProfileElement.getProfile(state, 1f);
            FloatBuffer direct = PoProfileElement.getDirectProfile(state, 1f);
            DataPaths.check(coordinates.length == PoProfileElement.getProfilePointCount(state, 1f) * 2
                    && direct.get(0) == coordinates[0] && PoProfileElement.getBBox(state).getMax().getValue()[0] > 0, "profile shown");

            // Set from Java, then read back.
            PoBevelEdgeElement.set(state, self, true, 30, 0, 0.1f);
            PoLabelHintsElement.set(state, self, 1, 2, "soak", true, false);
            PoCellFilterElement.set(state, cellFilter);
            PoDataMappingElement.set(state, self, mapping);
            PoDateFormatMappingElement.set(state, self, dates);
            PoDomainElement.set(state, self, domain);
            PoIsovaluesListElement.set(state, self, isovalues);
            PoMesh1DFilterElement.set(state, self, pointFilter);
            PoMesh1DHintsElement.set(state, self, 2);
            PoMeshElement.set(state, self, mesh);
            PoMiscTextAttrElement.set(state, self, text);
            PoNumericDisplayFormatElement.set(state, self, format);
            PoProfileElement.set(state, self, profile);
            DataPaths.check(PoDataMappingElement.get(state).getHLSColor(0f).lightness() == 0f, "mapping set");
            DataPaths.check(PoIsovaluesListElement.get(state).getIsoList().values().length == 3, "isovalues set");
            DataPaths.check(PoDomainElement.get(state).get3DDomain().equals(new SbBox3f(0, 0, 0, 2, 4, 8)), "domain set");
            DataPaths.check(PoDateFormatMappingElement.get(state).getCoordinate("2024-01-02") == 10f, "dates set");
            DataPaths.check(PoMiscTextAttrElement.get(state).getFontName().equals("Serif"), "text attributes set");
            DataPaths.check(PoNumericDisplayFormatElement.get(state).getFormat().width() == 7, "format set");
            DataPaths.check(same(PoCellFilterElement.get(state), cellFilter), "cell filter set");
            DataPaths.check(same(PoMesh1DFilterElement.get(state), pointFilter), "1D filter set");
            DataPaths.check(PoMesh1DHintsElement.get(state) == 2, "hints set");
            DataPaths.check(PoMeshElement.getMesh(state).getNumNodes() == 9, "mesh set");
            DataPaths.check(PoProfileElement.getDirectProfile(state, 2f).capacity() > 0, "profile set");
        });
        PoMeshFilled filled = new PoMeshFilled();
        SoSeparator part = new SoSeparator();
        SoGroup root = new SoGroup();
        for (SoNode n : propertyNodes) {
            part.addChild(n);
        }
        part.addChild(reader);
        part.addChild(filled);
        root.addChild(part);
        SoAction[] actions = {new SoGLRenderAction(), new SoCallbackAction()};
        return new Loop() {
            @Override
            public void step(int i) {
                int reads = reader.reads;
                int before = calls;
                actions[i & 1].apply(root);
                DataPaths.check(reader.reads == reads + 1, "Java node read the elements");
                DataPaths.check(calls > before, "Java elements called by the state");
            }

            @Override
            public void close() {
                for (ElementClass c : classes) {
                    SoAction.enableElement(c.toolkitType(), c.stackIndex());
                }
                for (SoAction action : actions) {
                    action.dispose();
                }
                root.dispose();
                part.dispose();
                filled.dispose();
                reader.dispose();
                propertyNodes.forEach(SoNode::dispose);
            }
        };
    }

    private static boolean same(SoNode a, SoNode b) {
        return a != null && a.getNativeResourceHandleInternal() == b.getNativeResourceHandleInternal();
    }
}
