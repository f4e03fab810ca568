# A text file with the extension of a library.
for i in $(seq 1 40); do echo "this is not a shared library"; done > fake.so
cp "$E2E_BUILD"/plugins/silent_plugin.so silent.so
