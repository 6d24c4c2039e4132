// The control library starts here.
