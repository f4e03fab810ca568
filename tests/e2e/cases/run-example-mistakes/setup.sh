# The model files are those of examples/mistakes in the source tree.
examples="$(dirname "${BASH_SOURCE[0]}")/../../../../examples/mistakes"
cp "$examples"/*.xml . || exit 1
