cp "$E2E_BUILD"/plugins/informing_plugin.so informing.so
