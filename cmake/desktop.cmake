# The program: the desktop host where Qt is to be had, the headless one always.
