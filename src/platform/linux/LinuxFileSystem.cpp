// The files of a Linux system.
