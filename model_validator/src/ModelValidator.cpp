// Command-line entry of zef_model_validator (being built up).
int main() { return 0; }
