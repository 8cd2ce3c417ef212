package com.kestrum.tavrel.misuse;

import com.kestrum.corvel.SoInput;
import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoDistributeAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.actions.SoGetBoundingBoxAction;
import com.kestrum.corvel.actions.SoGetMatrixAction;
import com.kestrum.corvel.actions.SoGetPrimitiveCountAction;
import com.kestrum.corvel.actions.SoHandleEventAction;
import com.kestrum.corvel.actions.SoPickAction;
import com.kestrum.corvel.actions.SoRayPickAction;
import com.kestrum.corvel.actions.SoSearchAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.corvel.fields.SoField;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.nodes.PoCellFilter;

/**
 * A Java cell filter whose {@code acceptCell} and every other forwarded operation misbehave at
 * the misuse run's choice.
 *
 * <p>Each override asks the misuse run ({@link Misuse#enter}, {@link Misuse#value}) what to do:
 * make further calls (disposing this node, the action, ...), then call {@code super}, return a
 * hostile value (null, a disposed object) or throw.
 */
public class HostileFilter extends PoCellFilter {
    public HostileFilter() {
        super();
    }

    @Override public void touch() { if (Misuse.enter(this, "touch")) super.touch(); }
    @Override public String getName() { return Misuse.value(this, "getName", String.class, super::getName); }
    @Override public void setName(String name) { if (Misuse.enter(this, "setName", name)) super.setName(name); }
    @Override public String getFileFormatName() {
        return Misuse.value(this, "getFileFormatName", String.class, super::getFileFormatName);
    }
    @Override public boolean readInstance(SoInput in, short flags) {
        return Misuse.value(this, "readInstance", Boolean.class, () -> super.readInstance(in, flags), in, flags);
    }
    @Override public SoField getField(String name) {
        return Misuse.value(this, "getField", SoField.class, () -> super.getField(name), name);
    }
    @Override public SoField getEventIn(String name) {
        return Misuse.value(this, "getEventIn", SoField.class, () -> super.getEventIn(name), name);
    }
    @Override public SoField getEventOut(String name) {
        return Misuse.value(this, "getEventOut", SoField.class, () -> super.getEventOut(name), name);
    }
    @Override public void setOverride(boolean state) { if (Misuse.enter(this, "setOverride", state)) super.setOverride(state); }
    @Override public boolean isOverride() { return Misuse.value(this, "isOverride", Boolean.class, super::isOverride); }
    @Override public boolean affectsState() { return Misuse.value(this, "affectsState", Boolean.class, super::affectsState); }
    @Override public boolean isBoundingBoxIgnoring() { return Misuse.value(this, "isBoundingBoxIgnoring", Boolean.class, super::isBoundingBoxIgnoring); }
    @Override public SoNode copy(boolean copyConnections) {
        return Misuse.value(this, "copy", SoNode.class, () -> super.copy(copyConnections), copyConnections);
    }
    @Override protected void internalAddChild(SoNode child) {
        if (Misuse.enter(this, "internalAddChild", child)) super.internalAddChild(child);
    }
    @Override public SoNode getAlternateRep(SoAction action) {
        return Misuse.value(this, "getAlternateRep", SoNode.class, () -> super.getAlternateRep(action), action);
    }
    @Override public void doAction(SoAction action) { if (Misuse.enter(this, "doAction", action)) super.doAction(action); }
    @Override public void GLRender(SoGLRenderAction action) { if (Misuse.enter(this, "GLRender", action)) super.GLRender(action); }
    @Override public void callback(SoCallbackAction action) { if (Misuse.enter(this, "callback", action)) super.callback(action); }
    @Override public void getBoundingBox(SoGetBoundingBoxAction action) { if (Misuse.enter(this, "getBoundingBox", action)) super.getBoundingBox(action); }
    @Override public void getMatrix(SoGetMatrixAction action) { if (Misuse.enter(this, "getMatrix", action)) super.getMatrix(action); }
    @Override public void handleEvent(SoHandleEventAction action) { if (Misuse.enter(this, "handleEvent", action)) super.handleEvent(action); }
    @Override public void pick(SoPickAction action) { if (Misuse.enter(this, "pick", action)) super.pick(action); }
    @Override public void rayPick(SoRayPickAction action) { if (Misuse.enter(this, "rayPick", action)) super.rayPick(action); }
    @Override public void search(SoSearchAction action) { if (Misuse.enter(this, "search", action)) super.search(action); }
    @Override public void write(SoWriteAction action) { if (Misuse.enter(this, "write", action)) super.write(action); }
    @Override public void getPrimitiveCount(SoGetPrimitiveCountAction action) { if (Misuse.enter(this, "getPrimitiveCount", action)) super.getPrimitiveCount(action); }
    @Override public void distribute(SoDistributeAction action) { if (Misuse.enter(this, "distribute", action)) super.distribute(action); }
    @Override public void GLRenderBelowPath(SoGLRenderAction action) { if (Misuse.enter(this, "GLRenderBelowPath", action)) super.GLRenderBelowPath(action); }
    @Override public void GLRenderInPath(SoGLRenderAction action) { if (Misuse.enter(this, "GLRenderInPath", action)) super.GLRenderInPath(action); }
    @Override public void GLRenderOffPath(SoGLRenderAction action) { if (Misuse.enter(this, "GLRenderOffPath", action)) super.GLRenderOffPath(action); }
    @Override public void grabEventsSetup() { if (Misuse.enter(this, "grabEventsSetup")) super.grabEventsSetup(); }
    @Override public void grabEventsCleanup() { if (Misuse.enter(this, "grabEventsCleanup")) super.grabEventsCleanup(); }
    @Override public int getRenderUnitID() { return Misuse.value(this, "getRenderUnitID", Integer.class, super::getRenderUnitID); }
    @Override public RenderModes getRenderEngineMode() {
        return Misuse.value(this, "getRenderEngineMode", RenderModes.class, super::getRenderEngineMode);
    }
    @Override public boolean acceptCell(int cellIndex, float value) {
        return Misuse.value(this, "acceptCell", Boolean.class, () -> super.acceptCell(cellIndex, value), cellIndex, value);
    }
}
