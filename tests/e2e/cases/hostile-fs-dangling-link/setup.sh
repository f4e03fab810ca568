ln -s missing.xml a.xml
