// The traversal state of one action application.
#pragma once

class SoAction;

class SoState {
 public:
  explicit SoState(SoAction* action);
  virtual ~SoState();
  SoAction* getAction() const { return action; }
  int getDepth() const { return depth; }
  void push() { ++depth; }
  void pop() { --depth; }

 private:
  SoAction* action;
  int depth = 0;
};
