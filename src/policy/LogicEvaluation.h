#pragma once

class Task;
class TaskResponse;

// Performs a tree of logic tasks (and, or, not) without recursion: a tree built in code may be
// nested far deeper than the stack holds frames. Each composite behaves exactly as its own
// perform describes (terms in order, the factory's result cache asked and offered, every term
// traced, messages prefixed with the kind); other kinds of task are performed as they are.
// Messages are built from both ends, so that a deep chain of prefixes costs linear time.
class LogicEvaluation {
public:
    /// The response of `root`, an andTask, orTask or notTask; owned by the caller.
    static TaskResponse* perform(Task& root);
};
