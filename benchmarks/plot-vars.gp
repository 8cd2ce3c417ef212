njdk = 2
nvectors = 5
ndatasets = 9
nbulkbuild = 23
nbulkrender = 13
