# The example model set, under the same folder name as in the README.
examples="$(dirname "${BASH_SOURCE[0]}")/../../../../examples/multi"
mkdir -p examples/multi && cp "$examples"/*.xml examples/multi/ || exit 1
