cp a.xml a.xml.orig
