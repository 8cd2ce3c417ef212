package com.kestrum.tavrel.misuse;

import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.elements.SoElement;
import com.kestrum.corvel.misc.SoState;
import com.kestrum.tavrel.elements.PoDataMappingElement;

/**
 * A Java data-mapping element whose overrides misbehave at the misuse run's choice, as
 * {@link HostileNode}'s do. {@link #enable()} makes the traversal states make it on the
 * data-mapping stack (and {@link #disable()} makes them go back to the toolkit's element), so that
 * traversals push, pop and initialise it while the run calls the public API from its overrides.
 */
public class HostileElement extends PoDataMappingElement {
    public HostileElement() {
        super();
    }

    /** Makes the traversal states from now on make hostile elements for data mappings. */
    public static boolean enable() {
        try (HostileElement registered = new HostileElement()) {
            return SoAction.enableElement(registered.getTypeName(), registered.getStackIndex());
        }
    }

    /** Makes the traversal states go back to the toolkit's data-mapping element. */
    public static boolean disable() {
        return SoAction.enableElement(getClassTypeName(), getClassStackIndex());
    }

    @Override public void push(SoState state) { if (Misuse.enter(this, "push", state)) super.push(state); }
    @Override public void pop(SoState state, SoElement previousTop) {
        if (Misuse.enter(this, "pop", state, previousTop)) super.pop(state, previousTop);
    }
    @Override public void init(SoState state) { if (Misuse.enter(this, "init", state)) super.init(state); }
    @Override public boolean matches(SoElement element) {
        return Misuse.value(this, "matches", Boolean.class, () -> super.matches(element), element);
    }
    @Override public SoElement copyMatchInfo() {
        return Misuse.value(this, "copyMatchInfo", SoElement.class, super::copyMatchInfo);
    }
    @Override public void captureThis(SoState state) {
        if (Misuse.enter(this, "captureThis", state)) super.captureThis(state);
    }
}
