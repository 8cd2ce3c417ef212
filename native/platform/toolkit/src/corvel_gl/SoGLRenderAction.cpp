#include <Corvel/SoAction.h>
#include <Corvel/SoNode.h>

SO_ACTION_SOURCE(SoGLRenderAction, SoAction, "GLRenderAction", GLRender)
