ln -s b.xml a.xml
ln -s a.xml b.xml
