# The reader: speaks sentences through the speech service of the desktop.
