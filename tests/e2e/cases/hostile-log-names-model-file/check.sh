# The log named the model file: the model file is unchanged.
cmp -s a.xml a.xml.orig || { echo "a.xml was written"; exit 1; }
