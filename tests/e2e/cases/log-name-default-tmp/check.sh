rm -f /tmp/zef_model_validator_zef-e2e-default-name.log*
