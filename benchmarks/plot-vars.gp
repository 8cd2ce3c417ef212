njdk = 2
nvectors = 5
ndatasets = 9
