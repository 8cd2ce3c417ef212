package com.kestrum.tavrel.misuse;

import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.misc.SoState;
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
import java.util.List;

/**
 * Java subclasses of the thirteen element classes whose overrides ({@code push}, {@code pop},
 * {@code init}, {@code matches}, {@code copyMatchInfo}, {@code captureThis}) misbehave at the
 * misuse run's choice, as {@link HostileNode}'s do: they throw, dispose the state, the element,
 * the node or the action, call the element classes' {@code set} and {@code get} with the state,
 * return hostile values, and keep what they are given for later. The run enables their types on
 * the actions ({@code SoAction.enableElement}) so that traversal states make them.
 */
public final class HostileElements {
    /** One class per element class, in the order of the element classes' names. */
    static final List<Class<? extends SoElement>> ALL = List.of(BevelEdge.class, CellFilter.class, DataMapping.class, DateFormatMapping.class, Domain.class, IsovaluesList.class, LabelHints.class, Mesh1DFilter.class, Mesh1DHints.class, Mesh.class, MiscTextAttr.class, NumericDisplayFormat.class, Profile.class);

    private HostileElements() {}

    /** A hostile {@code PoBevelEdgeElement}. */
    public static class BevelEdge extends PoBevelEdgeElement {
        public BevelEdge() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoCellFilterElement}. */
    public static class CellFilter extends PoCellFilterElement {
        public CellFilter() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoDataMappingElement}. */
    public static class DataMapping extends PoDataMappingElement {
        public DataMapping() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoDateFormatMappingElement}. */
    public static class DateFormatMapping extends PoDateFormatMappingElement {
        public DateFormatMapping() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoDomainElement}. */
    public static class Domain extends PoDomainElement {
        public Domain() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoIsovaluesListElement}. */
    public static class IsovaluesList extends PoIsovaluesListElement {
        public IsovaluesList() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoLabelHintsElement}. */
    public static class LabelHints extends PoLabelHintsElement {
        public LabelHints() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoMesh1DFilterElement}. */
    public static class Mesh1DFilter extends PoMesh1DFilterElement {
        public Mesh1DFilter() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoMesh1DHintsElement}. */
    public static class Mesh1DHints extends PoMesh1DHintsElement {
        public Mesh1DHints() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoMeshElement}. */
    public static class Mesh extends PoMeshElement {
        public Mesh() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoMiscTextAttrElement}. */
    public static class MiscTextAttr extends PoMiscTextAttrElement {
        public MiscTextAttr() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoNumericDisplayFormatElement}. */
    public static class NumericDisplayFormat extends PoNumericDisplayFormatElement {
        public NumericDisplayFormat() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
    /** A hostile {@code PoProfileElement}. */
    public static class Profile extends PoProfileElement {
        public Profile() {
            super();
        }

        @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
        @Override public void pop(SoState state, SoElement top) { if (Misuse.enter(this, "pop", state, top)) super.pop(state, top); }
        @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
        @Override public boolean matches(SoElement e) { return Misuse.value(this, "matches", Boolean.class, () -> super.matches(e), e); }
        @Override public SoElement copyMatchInfo() { return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo); }
        @Override public void captureThis(SoState state) { if (Misuse.enter(this, "captureThis", state)) super.captureThis(state); }
    }
}
