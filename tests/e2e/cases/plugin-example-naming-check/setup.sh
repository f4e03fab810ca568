# The model files are those of examples/multi in the source tree.
examples="$(dirname "${BASH_SOURCE[0]}")/../../../../examples/multi"
cp "$examples"/*.xml . || exit 1
