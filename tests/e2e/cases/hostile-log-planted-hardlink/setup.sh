echo precious > precious.txt
ln precious.txt tmp/zef_model_validator_tester.log
