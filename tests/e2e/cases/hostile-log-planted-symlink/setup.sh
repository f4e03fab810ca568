echo precious > precious.txt
ln -s ../precious.txt tmp/zef_model_validator_tester.log
